#include "vexa/support/drawing/FontFamilyList.h"

#include <gtest/gtest.h>

#include "vexa/support/core/String.h"

namespace VEXA {
namespace {

std::string namesOf(const String& text) {
    std::string names;
    FontFamilyList list(text.view());
    while (const auto name = list.next()) names += "[" + String(*name).toUtf8() + "]";
    return names;
}

TEST(FontFamilyList, NamesStandBetweenCommas) {
    struct Case {
        const char* text;
        const char* names;
    };
    const Case cases[] = {
        {"Arial", "[Arial]"},
        {"", ""},
        {" , ,, ", ""},
        {"  Noto Sans ,serif", "[Noto Sans][serif]"},
        {"'Fira, Mono', \"It's\"", "[Fira, Mono][It's]"},
        {"'open, serif", "[open, serif]"},
        {"'a' stray, b", "[a][b]"},
        {"'', \" \", c", "[c]"},
        {"\u5FAE\u8F6F\u96C5\u9ED1, Arial", "[\u5FAE\u8F6F\u96C5\u9ED1][Arial]"},
    };
    for (const Case& c : cases) EXPECT_EQ(namesOf(c.text), c.names) << c.text;
    const std::string manyNames = std::string(995, 'a') + ",bcdefghi";
    EXPECT_EQ(namesOf(manyNames), "[" + std::string(995, 'a') + "][bcde]") << "1,000 characters count";
}

TEST(FontFamilyList, GenericFamiliesGoByKeywordsInAnyCase) {
    EXPECT_EQ(genericFamily(U"SANS-Serif"), "sans-serif");
    EXPECT_EQ(genericFamily(U"system-ui"), "system-ui");
    EXPECT_EQ(genericFamily(U"serif2"), std::nullopt);
    EXPECT_EQ(genericFamily(U""), std::nullopt);
}

}  // namespace
}  // namespace VEXA
