#include "cli/FontsCommand.h"

#include <gtest/gtest.h>

#include <tuple>

namespace VEXA::Cli {
namespace {

FontsOptions optionsFor(std::vector<std::string> texts) {
    FontsOptions options;
    options.texts = std::move(texts);
    return options;
}

TEST(FontsCommand, TellsTheFaceAndTheWidthOfEachText) {
    FontsOptions options = optionsFor({"Hill", ""});
    options.family = "No Such Font, Arial";
    options.isBold = true;
    options.size = "20";
    const Answer answer = listFonts(options);
    EXPECT_EQ(answer.status, kDone);
    // 1479 + 3 * 569 units of 2048, as the bold H, i and l are wide.
    EXPECT_EQ(answer.text,
              "No Such Font, Arial: Liberation Sans Bold (built in)\n"
              "\"Hill\": 31.11 px\n"
              "  \"Hill\": 31.11 px, Liberation Sans Bold (built in)\n"
              "\"\": 0 px\n");
}

TEST(FontsCommand, NamesTheCharactersThatNoFontHas) {
    const Answer answer = listFonts(optionsFor({"a\U000E1234\U0010FFFD"}));
    EXPECT_EQ(answer.status, kDone) << "a listing, not a failure";
    for (const char* line : {"(U+E1234): a box is drawn\n", "(U+10FFFD): a box is drawn\n"}) {
        EXPECT_NE(answer.text.find(line), std::string::npos) << answer.text;
    }
}

TEST(FontsCommand, RefusesWhatItCannotMeasure) {
    FontsOptions badFamily;
    badFamily.family = "Lat\xf6";
    const std::tuple<FontsOptions, const char*> cases[] = {
        {optionsFor({"fine", "Z\xfcrich"}), "vexa fonts: the text \"Z\uFFFDrich\" is not UTF-8\n"},
        {optionsFor({"\xed\xa0\x80"}), "is not UTF-8\n"},  // half of a pair of UTF-16
        {badFamily, "vexa fonts: --family \"Lat\uFFFD\" is not UTF-8\n"},
    };
    for (const auto& [options, part] : cases) {
        const Answer answer = listFonts(options);
        EXPECT_EQ(answer.status, kWrongUsage);
        EXPECT_NE(answer.text.find(part), std::string::npos) << answer.text;
    }
    for (const char* size : {"", "0", "-1", "10001", "nan", "12px"}) {
        FontsOptions options;
        options.size = size;
        EXPECT_EQ(listFonts(options).status, kWrongUsage) << size;
    }
}

}  // namespace
}  // namespace VEXA::Cli
