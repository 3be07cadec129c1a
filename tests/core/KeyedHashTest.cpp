#include "vexa/support/core/KeyedHash.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace VEXA {
namespace {

TEST(KeyedHash, TellsTextsOfAnyLengthApart) {
    const std::string text = "an id that is longer than a word";
    std::set<std::uint64_t> seen;
    for (std::size_t length = 0; length <= text.size(); ++length) {
        const auto hash = keyedHash(text.data(), length);
        EXPECT_TRUE(seen.insert(hash).second) << length;
        EXPECT_EQ(hash, keyedHash(std::string(text, 0, length).data(), length)) << "the bytes count, not the address";
        const std::string zero = text.substr(0, length) + '\0';
        EXPECT_TRUE(seen.insert(keyedHash(zero.data(), zero.size())).second) << length;
    }
}

TEST(KeyedHash, SpreadsRegularNumbersOverASmallTable) {
    constexpr std::size_t slots = 1024;
    std::vector<int> taken(slots);
    for (std::uint64_t day = 0; day < 4 * slots; ++day) ++taken[keyedHash(day * 86'400) % slots];
    for (const int count : taken) EXPECT_LT(count, 25) << "4 are to be expected; 25 come once in 10^12 tables";
}

}  // namespace
}  // namespace VEXA
