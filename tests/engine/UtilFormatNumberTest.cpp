#include <limits>

#include "tests/engine/EngineTestTools.h"
#include "vexa/util/NumberFormat.h"
#include "vexa/util/Util.h"

namespace VEXA {
namespace {

using Testing::Case;

constexpr float kInfinity = std::numeric_limits<float>::infinity();

TEST(UtilDecimalFormat, SettingsFollowThePattern) {
    const Case<std::pair<float, const char*>, const char*> cases[] = {
        {{-1234.5F, "#,##0.00 th:. dec:, sign:-"}, "-1.234,50", "all of them"},
        {{-1234.5F, "#,##0.00"}, "-1,234.50", "none: the usual ones"},
        {{1234567, "#,##0 th:'"}, "1'234'567", "the last settings may be missing"},
        {{-1234.5F, "#,##0.0 th:' sign:~"}, "~1'234.5", "one between, too"},
        {{-1.5F, "0.0 th: dec:; sign:\xE2\x88\x92"}, "\xE2\x88\x92\x31;5", "an empty one is the usual one"},
        {{-1234.5F, "\t#,##0.0th:_dec:/sign:minus "}, "minus1_234/5", "blanks part nothing, and do not count"},
        {{1234, "#,##0 th:\xC2\xA0 dec:,"}, "1\xC2\xA0\x32\x33\x34", "but for a no-break space"},
        {{1234.5F, "#,##0.0 th:  dec:,"}, "1.234,5", "only blanks are empty; the comma has its job already"},
        {{1234.5F, "#,##0.0 th:."}, "1.234,5", "so has the point here"},
        {{1234.5F, "#,##0.0 th:, dec:,"}, "1,234,5", "who gives both gets both"},
        {{1.5F, "0.0 dec:,"}, "1,5 dec:,", "without th: all of it is the pattern, and the setting counts as well"},
        {{-5, "0 sign:~"}, "~5 sign:~", "likewise"},
        {{-1234.5F, "#,##0.0 th:. sign:~ dec:,"}, "~ dec:,1. sign:~234,5", "out of order a setting has the next in it"},
        {{0.15F, "0.0 th: dec:,"}, "0,2", "half away from zero, on the decimal"},
        {{-0.04F, "0.0"}, "0.0", "never a negative zero"},
        {{-kInfinity, "0 th: sign:~"}, "~Infinity", "no digits to write"},
        {{2.5F, ""}, "2.5", "no pattern: the number's own text"},
        {{1234, "th:x"}, "1234", "a setting alone groups nothing"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Util::decimalFormat(c.in.first, c.in.second).toUtf8(), c.out) << c.in.second << ": " << c.why;
}

TEST(UtilDecimalFormat, IsReadOnceForManyNumbers) {
    const DecimalFormat format = readNumberFormat("#,##0.# m th:. dec:, sign:~");
    std::u32string out = U"<";
    for (const float value : {-1234.5F, 2.0F, 0.25F}) format.append(value, out += U'|');
    EXPECT_EQ(String(out).toUtf8(), "<|~1.234,5 m|2 m|0,3 m");
}

TEST(UtilDecimalFormat, TellsWhatIsNotReadAsItLooks) {
    const std::string many(1001, '0');
    const Case<std::string, const char*> cases[] = {
        {"#,##0.00 th:. dec:, sign:-", "", "all well"},
        {"0.0", "", "no settings"},
        {"0 th:. sign:~", "", "one left out"},
        {"0.0 dec:,", "34060@3:7", "shown as text"},
        {"0 sign:~", "34060@3:7", "likewise"},
        {"0.0 dec:, th:.", "34060@3:7", "before the grouping separator"},
        {"0.0 th:. sign:~ dec:,", "34060@3:7", "in the minus sign"},
        {many, "34061@3:7", "the pattern is cut"},
        {"0 th:01234567890", "34061@3:7", "a separator is"},
        {"0 th: sign:01234567890", "34061@3:7", "the sign is"},
        {many.substr(1) + " th:0123456789", "", "the largest of both"},
        {many + " dec:,", "34060@3:7 34061@3:7", "both"},
    };
    for (const auto& c : cases) {
        Testing::CapturedLog log;
        checkNumberFormat(c.in, {3, 7});
        EXPECT_EQ(log.told(), c.out) << c.why;
    }
}

}  // namespace
}  // namespace VEXA
