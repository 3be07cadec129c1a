// What a document may cost: memory in proportion to its elements, its text and its picture, time to its size.

#include <algorithm>
#include <ctime>

#include "bench/PeakMemory.h"
#include "tests/regressions/RegressionDocuments.h"

namespace VEXA::Testing {
namespace {

constexpr double kBytesAtLeast = 64.0 * 1024 * 1024;
constexpr double kBytesOfElement = 600;
constexpr double kBytesOfCharacter = 40;
constexpr double kSecondsOfMegabyte = 2;

double bytesAllowed(const RegressionDocument& document, std::size_t output) {
    const auto tags = static_cast<double>(std::ranges::count(document.text, '<'));
    return kBytesAtLeast + kBytesOfElement * tags + kBytesOfCharacter * static_cast<double>(document.text.size()) +
           static_cast<double>(output);
}

TEST(Budget, NoDocumentTakesMoreMemoryOrTimeThanItsSizeAllows) {
    for (const RegressionDocument& document : regressionDocuments()) {
        const Bench::PeakMemory memory;
        const std::clock_t before = std::clock();
        const Fuzz::Painting painting = Fuzz::paint(document.text, &Fuzz::svgSurface);
        const double seconds = static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
        const double megabytes = std::max(1.0, static_cast<double>(document.text.size()) / 1e6);
        EXPECT_LT(seconds, kSecondsOfMegabyte * megabytes) << document.name;
        EXPECT_LT(static_cast<double>(memory.bytes()), bytesAllowed(document, painting.bytes.size())) << document.name;
    }
}

}  // namespace
}  // namespace VEXA::Testing
