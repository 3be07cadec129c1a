// What a document may cost: memory in proportion to its elements, its text and its picture.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>

#include "tests/regressions/RegressionDocuments.h"

namespace VEXA::Testing {
namespace {

constexpr double kBytesAtLeast = 64.0 * 1024 * 1024;
constexpr double kBytesOfElement = 600;
constexpr double kBytesOfCharacter = 40;

struct Cost {
    double bytes = 0;
    std::size_t output = 0;
};

double residentBytes() {
    double total = 0;
    double resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE));
}

/// Of painting in a process of its own, whose peak the system knows.
Cost costOf(const RegressionDocument& document, const Fuzz::SurfaceMaker& makeSurface) {
    const double before = residentBytes();
    int ends[2] = {};
    if (pipe(ends) != 0) return {};
    const pid_t child = fork();
    if (child == 0) {
        const std::size_t output = Fuzz::paint(document.text, makeSurface).bytes.size();
        _exit(write(ends[1], &output, sizeof output) == sizeof output ? 0 : 1);
    }
    close(ends[1]);
    Cost cost;
    rusage usage{};
    int status = 1;
    EXPECT_EQ(read(ends[0], &cost.output, sizeof cost.output), ssize_t{sizeof cost.output}) << document.name;
    close(ends[0]);
    wait4(child, &status, 0, &usage);
    EXPECT_EQ(status, 0) << document.name;
    cost.bytes = static_cast<double>(usage.ru_maxrss) * 1024 - before;
    return cost;
}

void expectWithinBudget(const RegressionDocument& document) {
    const auto size = static_cast<double>(document.text.size());
    const auto elements = static_cast<double>(std::ranges::count(document.text, '<'));
    const Cost cost = costOf(document, &Fuzz::svgSurface);
    EXPECT_LT(cost.bytes,
              kBytesAtLeast + kBytesOfElement * elements + kBytesOfCharacter * size + static_cast<double>(cost.output))
        << document.name;
}

TEST(Budget, NoDocumentTakesMoreMemoryThanItsSizeAllows) {
    for (const RegressionDocument& document : regressionDocuments()) expectWithinBudget(document);
}

TEST(Budget, ALargePictureIsInMemoryOnce) {
    std::string plots;
    for (int i = 0; i < 5; ++i) {
        plots +=
            "<plot-area width='600' height='400'><category-axis/><value-axis min='0' max='99990' unit='1'>"
            "<display-values/><grid-lines type='line' stroke='red'/></value-axis>"
            "<bar-chart><serie><data-point category='a' value='1'/></serie></bar-chart></plot-area>";
    }
    expectWithinBudget({"half a million grid lines",
                        "<root xmlns='http://vexa-charts.org/2008/vx' width='600' height='400'>" + plots + "</root>"});
}

}  // namespace
}  // namespace VEXA::Testing
