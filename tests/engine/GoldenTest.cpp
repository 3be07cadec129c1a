#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/engine/EngineTestTools.h"

namespace VEXA {
namespace {

using namespace Testing;
using Json = nlohmann::json;
namespace fs = std::filesystem;

constexpr double kTolerance = 1e-3;

const fs::path kFolder = fs::path(VEXA_SOURCE_DIR) / "tests/engine/golden";

std::string contentOf(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

/// Texts are the same when they differ in numbers only, and those by no more than the tolerance: path data.
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

bool same(const Json& a, const Json& b) {
    if (a.is_number() && b.is_number()) return std::abs(a.get<double>() - b.get<double>()) <= kTolerance;
    if (a.is_string() && b.is_string())
        return sameText(a.get_ref<const std::string&>(), b.get_ref<const std::string&>());
    if (a.type() != b.type() || a.size() != b.size()) return false;
    if (a.is_array()) return std::equal(a.begin(), a.end(), b.begin(), same);
    if (!a.is_object()) return a == b;
    return std::all_of(a.items().begin(), a.items().end(), [&](const auto& item) {
        return b.contains(item.key()) && same(item.value(), b.at(item.key()));
    });
}

/// Empty when both display lists show the same picture, else the first line in which they differ.
std::string firstDifference(const std::string& golden, const std::string& drawn) {
    const std::vector<std::string> expected = linesOf(golden);
    const std::vector<std::string> found = linesOf(drawn);
    for (std::size_t i = 0; i < std::max(expected.size(), found.size()); ++i) {
        const std::string a = i < expected.size() ? expected[i] : "null";
        const std::string b = i < found.size() ? found[i] : "null";
        if (!same(Json::parse(a), Json::parse(b))) {
            return "line " + std::to_string(i + 1) + "\n  golden: " + a + "\n  drawn:  " + b;
        }
    }
    return {};
}

std::vector<std::string> charts() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(kFolder)) {
        if (entry.path().extension() == ".xml") names.push_back(entry.path().stem().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

class Golden : public testing::TestWithParam<std::string> {};

// VEXA_UPDATE_GOLDEN=1 renews the pictures and fails the run, so that the author looks at what changed.
TEST_P(Golden, DrawsTheSame) {
    const fs::path file = kFolder / (GetParam() + ".jsonl");
    const std::string drawn = draw(contentOf(kFolder / (GetParam() + ".xml")));
    const char* const update = std::getenv("VEXA_UPDATE_GOLDEN");
    if (update != nullptr && std::string_view(update) == "1") {
        std::ofstream(file, std::ios::binary) << drawn;
        FAIL() << file << " is renewed: look at the difference, then run without VEXA_UPDATE_GOLDEN";
    }
    EXPECT_EQ(firstDifference(contentOf(file), drawn), "") << "VEXA_UPDATE_GOLDEN=1 renews the picture";
}

INSTANTIATE_TEST_SUITE_P(Charts, Golden, testing::ValuesIn(charts()), [](const auto& chart) {
    std::string name = chart.param;
    std::replace_if(
        name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
    return name;
});

TEST(GoldenComparison, AllowsRoundingAndNothingElse) {
    const std::string golden = R"({"op":"path","d":"M1 -2.5L3 4Z","x":10})";
    const struct {
        const char* drawn;
        bool same;
        const char* why;
    } cases[] = {
        {R"({"op":"path","d":"M1 -2.5L3 4Z","x":10})", true, "the same line"},
        {R"({"op":"path","d":"M1 -2.5004L3 4Z","x":10.0009})", true, "rounded otherwise"},
        {R"({"op":"path","d":"M1 -2.5L3 4Z","x":10.002})", false, "another number"},
        {R"({"op":"path","d":"M1 -2.5L3 4.01Z","x":10})", false, "another point"},
        {R"({"op":"path","d":"M1 -2.5L3 4","x":10})", false, "an open path"},
        {R"({"op":"path","d":"M1 -2.5L3 4L3 4Z","x":10})", false, "a point more"},
        {R"({"op":"path","d":"M1 -2.5L3 4Z"})", false, "a key less"},
        {R"({"op":"path","d":"M1 -2.5L3 4Z","x":10,"y":1})", false, "a key more"},
        {R"({"op":"line","d":"M1 -2.5L3 4Z","x":10})", false, "another operation"},
        {"", false, "a line less"},
    };
    for (const auto& c : cases) EXPECT_EQ(firstDifference(golden, c.drawn).empty(), c.same) << c.why;
}

}  // namespace
}  // namespace VEXA
