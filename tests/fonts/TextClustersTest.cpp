#include "vexa/fonts/TextClusters.h"

#include "tests/fonts/FontTestTools.h"

namespace VEXA::Testing {
namespace {

/// Each cluster's length, "*" behind those wanted in colour.
std::string clustersOf(std::u32string_view text) {
    std::string result;
    const auto clusters = splitClusters(text);
    for (std::size_t i = 0; i < clusters.size(); ++i) {
        const std::size_t end = i + 1 < clusters.size() ? clusters[i + 1].begin : text.size();
        result += std::to_string(end - clusters[i].begin) + (clusters[i].isEmoji ? "* " : " ");
    }
    return result;
}

TEST(TextClusters, HoldWhatReadersSeeAsOne) {
    struct Case {
        const char* why;
        std::u32string_view text;
        const char* clusters;
    };
    const Case cases[] = {
        {"nothing", U"", ""},
        {"letters and figures", U"a1", "1 1 "},
        {"marks stand with their letter", U"e\u0301\u0323x", "3 1 "},
        {"a mark at the beginning stands alone", U"\u0301a", "1 1 "},
        {"vowel signs of Devanagari", U"\u0915\u093F\u0928", "2 1 "},
        {"joiners and direction marks go with what is before them", U"\u0645\u200C\u0645\u200F", "2 2 "},
        {"a Korean syllable of three parts", U"\u1112\u1161\u11AB\u1100", "3 1 "},
        {"emoji", U"\U0001F600\u2705", "1* 1* "},
        {"a sign is plain unless it is asked for in colour", U"\u2764\u2764\uFE0F", "1 2* "},
        {"an emoji that is asked for as plain", U"\u231A\uFE0E", "2 "},
        {"a flag takes two letters, the third begins another", U"\U0001F1EB\U0001F1F7\U0001F1E9", "2* 1* "},
        {"a tone of skin", U"\U0001F44D\U0001F3FD\u261D\U0001F3FD", "2* 2* "},
        {"a tone alone is a patch of colour", U"a\U0001F3FD", "1 1* "},
        {"a family of three", U"\U0001F469\u200D\U0001F469\u200D\U0001F467!", "5* 1 "},
        {"joined with a plain sign", U"\U0001F9D1\u200D\u2695\uFE0F", "4* "},
        {"a heart on fire, written short", U"\u2764\u200D\U0001F525", "3* "},
        {"no letter joins an emoji", U"\U0001F469\u200Da", "2* 1 "},
        {"a keycap", U"1\uFE0F\u20E3", "3* "},
        {"a figure with a selector is a figure", U"1\uFE0F2", "2 1 "},
        {"the flag of Scotland is written with tags",
         U"\U0001F3F4\U000E0067\U000E0062\U000E0073\U000E0063\U000E0074\U000E007F", "7* "},
    };
    for (const Case& c : cases) EXPECT_EQ(clustersOf(c.text), c.clusters) << c.why;
}

TEST(TextClusters, TooManyMarksAreCutApart) {
    const auto clusters = splitClusters(U"a" + std::u32string(40, U'\u0301') + U"b");
    ASSERT_EQ(clusters.size(), 3U);
    EXPECT_EQ(clusters[1].begin, 32U);
    EXPECT_FALSE(clusters[0].isCut);
    EXPECT_TRUE(clusters[1].isCut);
    EXPECT_FALSE(clusters[2].isCut);
}

TEST(TextClusters, SignsTakeTheScriptOfTheirNeighbours) {
    const auto scriptsOf = [](std::u32string_view text) {
        std::vector<hb_script_t> scripts;
        for (const TextCluster& cluster : splitClusters(text)) scripts.push_back(cluster.script);
        return scripts;
    };
    using Scripts = std::vector<hb_script_t>;
    EXPECT_EQ(scriptsOf(U"12"), Scripts(2, HB_SCRIPT_LATIN)) << "no letter at all";
    EXPECT_EQ(scriptsOf(U"(\u0430"), Scripts(2, HB_SCRIPT_CYRILLIC)) << "before the first letter";
    EXPECT_EQ(scriptsOf(U"\u03B1 a"), (Scripts{HB_SCRIPT_GREEK, HB_SCRIPT_GREEK, HB_SCRIPT_LATIN}));
    EXPECT_EQ(scriptsOf(U"\u4E2D\u3002"), Scripts(2, HB_SCRIPT_HAN));
}

}  // namespace
}  // namespace VEXA::Testing
