#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <map>
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

}  // namespace
