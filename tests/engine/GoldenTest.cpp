#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/engine/EngineTestTools.h"

namespace VEXA::Testing {
namespace {
namespace fs = std::filesystem;

constexpr double kTolerance = 1e-3;

const fs::path kFolder = fs::path(VEXA_SOURCE_DIR) / "tests/engine/golden";

std::string contentOf(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

/// Texts are the same when they differ in numbers only, and those by no more than the tolerance.
bool sameText(std::string_view a, std::string_view b) {
    while (!a.empty() && !b.empty()) {
        double x = 0;
        double y = 0;
        const auto readA = std::from_chars(a.data(), a.data() + a.size(), x);
        const auto readB = std::from_chars(b.data(), b.data() + b.size(), y);
        if (readA.ec == std::errc() && readB.ec == std::errc()) {
            if (std::abs(x - y) > kTolerance) return false;
            a.remove_prefix(static_cast<std::size_t>(readA.ptr - a.data()));
            b.remove_prefix(static_cast<std::size_t>(readB.ptr - b.data()));
        } else {
            if (a.front() != b.front()) return false;
            a.remove_prefix(1);
            b.remove_prefix(1);
        }
    }
    return a.empty() && b.empty();
}

/// Empty when both display lists show the same picture, else the first line in which they differ.
std::string firstDifference(const std::string& golden, const std::string& drawn) {
    std::istringstream expected(golden);
    std::istringstream found(drawn);
    for (std::string a, b; !expected.eof() || !found.eof(); a.clear(), b.clear()) {
        std::getline(expected, a);
        std::getline(found, b);
        if (!sameText(a, b)) return "\n  golden: " + a + "\n  drawn:  " + b;
    }
    return {};
}

// VEXA_UPDATE_GOLDEN=1 renews the pictures and fails the run, so that the author looks at what changed.
TEST(Golden, EveryChartDrawsTheSame) {
    const char* const update = std::getenv("VEXA_UPDATE_GOLDEN");
    int charts = 0;
    for (fs::path file : fs::directory_iterator(kFolder)) {
        if (file.extension() != ".xml") continue;
        ++charts;
        const std::string drawn = draw(contentOf(file));
        file.replace_extension(".jsonl");
        EXPECT_EQ(firstDifference(contentOf(file), drawn), "") << file << ": VEXA_UPDATE_GOLDEN=1 renews the picture";
        if (update != nullptr && std::string_view(update) == "1") {
            std::ofstream(file, std::ios::binary) << drawn;
            ADD_FAILURE() << file << " is renewed: look at the difference, then run without VEXA_UPDATE_GOLDEN";
        }
    }
    EXPECT_GT(charts, 0);
}

TEST(GoldenComparison, AllowsRoundingAndNothingElse) {
    const std::string golden = R"("d":"M1 -2.5L3 4Z","x":10)";
    EXPECT_EQ(firstDifference(golden, R"("d":"M1 -2.5004L3 4Z","x":10.0009)"), "");
    for (const char* other : {R"("d":"M1 -2.5L3 4Z","x":10.002)", R"("d":"M1 -2.5L3 4","x":10)", "",
                              R"("d":"M1 -2.5L3 4Z","x":10,"y":1)", R"("f":"M1 -2.5L3 4Z","x":10)"})
        EXPECT_NE(firstDifference(golden, other), "") << other;
}

}  // namespace
}  // namespace VEXA::Testing
