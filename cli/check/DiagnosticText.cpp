#include "cli/check/DiagnosticText.h"

#include "cli/Messages.h"
#include "vexa/surfaces/JsonText.h"

namespace VEXA::Cli {

std::string jsonLine(const std::string& file, const LogRecord& problem) {
    std::string line = R"({"file":)";
    appendJsonString(String(file).view(), line);
    if (problem.place.isKnown()) {
        line += R"(,"line":)" + std::to_string(problem.place.line);
        line += R"(,"column":)" + std::to_string(problem.place.column);
    }
    line.append(R"(,"severity":")").append(severityName(problem.severity));
    line += R"(","number":)" + std::to_string(problem.code) + R"(,"message":)";
    appendJsonString(problem.message.view(), line);
    return line + "}\n";
}

}  // namespace VEXA::Cli
