#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <string>

namespace {

/// Numbers by the names of their constants.
using Numbers = std::map<std::string, double>;

double numberOf(std::string text) {
    std::erase_if(text, [](char c) { return c == ',' || c == '\'' || c == ' '; });
    return std::strtod(text.c_str(), nullptr);
}

/// Those of the lines "inline constexpr TYPE kName = NUMBER;".
Numbers limitsOfTheHeader() {
    Numbers numbers;
    std::ifstream file(VEXA_SOURCE_DIR "/vexa/support/core/Limits.h");
    for (std::string line; std::getline(file, line);) {
        if (!line.starts_with("inline constexpr ")) continue;
        const std::size_t name = line.find(" k") + 1;
        const std::size_t equals = line.find(" = ", name);
        numbers[line.substr(name, equals - name)] = numberOf(line.substr(equals + 3));
    }
    return numbers;
}

/// Those of the rows "| what | NUMBER | beyond it | `kName` |".
Numbers limitsOfThePage() {
    Numbers numbers;
    std::ifstream file(VEXA_SOURCE_DIR "/SECURITY.md");
    for (std::string line; std::getline(file, line);) {
        const std::size_t name = line.find("| `k");
        if (!line.starts_with("| ") || name == line.npos) continue;
        const std::size_t number = line.find(" | ") + 3;
        EXPECT_TRUE(
            numbers.emplace(line.substr(name + 3, line.rfind('`') - name - 3), numberOf(line.substr(number))).second)
            << line;
    }
    return numbers;
}

TEST(SecurityPage, GivesEveryLimitOfTheHeader) {
    EXPECT_GT(limitsOfTheHeader().size(), 20U);
    EXPECT_EQ(limitsOfThePage(), limitsOfTheHeader());
}

/// The texts of all tests.
std::string sourcesOfTests() {
    std::string all;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(VEXA_SOURCE_DIR "/tests")) {
        if (entry.path().extension() != ".cpp") continue;
        std::ifstream file(entry.path());
        all.append(std::istreambuf_iterator<char>(file), {});
    }
    return all;
}

TEST(SecurityPage, NamesTestsThatThereAre) {
    std::ifstream file(VEXA_SOURCE_DIR "/vexa/support/core/Limits.h");
    const std::string header{std::istreambuf_iterator<char>(file), {}};
    const std::string tests = sourcesOfTests();
    const std::regex listed("Tests?: ([^\n]+)");
    const std::regex named("(\\w+)\\.(\\w+)");
    int count = 0;
    for (std::sregex_iterator list(header.begin(), header.end(), listed), end; list != end; ++list) {
        const std::string names = (*list)[1];
        for (std::sregex_iterator name(names.begin(), names.end(), named); name != end; ++name, ++count) {
            const std::string test = "(" + (*name)[1].str() + ", " + (*name)[2].str() + ")";
            EXPECT_NE(tests.find(test), tests.npos) << test;
        }
    }
    EXPECT_GT(count, 20);
}

}  // namespace
