#include <cstdio>
#include "vexa/check/DocumentCheck.h"
using namespace VEXA;

int main(int, char** argv) {
    const auto chart = make<IO::FileStream>(argv[1], IO::FileStream::Mode::Read);
    const CheckReport report = DocumentCheck::run(chart);
    for (const LogRecord& problem : report.problems) {
        const char* const kind = problem.severity == Severity::Error ? "must" : "should";
        std::printf("line %u %s change: %s\n", problem.place.line, kind, problem.message.toUtf8().c_str());
    }
    return report.count(Severity::Error) > 0 ? 1 : 0;
}
