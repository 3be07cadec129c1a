#include "vexa/support/values/Suggestion.h"

#include <gtest/gtest.h>

#include "vexa/support/values/AxisUnits.h"
#include "vexa/support/values/Enumerations.h"
#include "vexa/support/values/Length.h"
#include "vexa/support/values/LocalForms.h"
#include "vexa/support/values/SColor.h"
#include "vexa/support/values/TXmlAttribute.h"

namespace VEXA {
namespace {

template <class T>
std::string suggested(const char* text) {
    return TXmlValueType<T>::instance().suggest(text);
}

TEST(Suggestion, GuessesTheValueThatWasMeant) {
    const struct {
        std::string (*suggest)(const char*);
        const char *text, *expected, *why;
    } cases[] = {
        {suggested<Length>, "12,5px", "12.5px", "a decimal comma"},
        {suggested<Length>, "12 px", "12px", "a blank before the unit"},
        {suggested<float>, "1,000", "1000", "three digits behind a comma: thousands"},
        {suggested<float>, "1,234,567.5", "1234567.5", "several commas separate thousands"},
        {suggested<Length>, "12em", "", "a unit that there is not: the message lists them"},
        {suggested<SmartPtr<Color>>, "ligthblue", "lightblue", "swapped letters"},
        {suggested<SNullableColor>, "ff8000", "#ff8000", "no # in front"},
        {suggested<SColor>, "Light Blue", "lightblue", "two words"},
        {suggested<SNullableColor>, "rgba(1, 2, 3, .5)", "rgb(1,2,3)", "opacity has its own attribute"},
        {suggested<SNullableColor>, "#ff800080", "#ff8000", "in another form"},
        {suggested<SNullableColor>, "#f80c", "#f80", "in the short form"},
        {suggested<SNullableColor>, "#ff80008", "", "of no form"},
        {suggested<SNullableColor>, "rgba(1 2 3)", "", "another form of it"},
        {suggested<SNullableColor>, "var(--accent)", "", "nothing like a colour"},
        {suggested<SerieGrouping>, "stack", "stacked", "the beginning of a keyword"},
        {suggested<DisplayValPlacement>, "betweenTicks", "between-ticks", "as programs write it"},
        {suggested<DisplayValPlacement>, "between ticks", "between-ticks", "as people write it"},
        {suggested<AxisUnits>, "month", "months", "one month"},
        {suggested<bool>, "True", "true", "as other languages write it"},
    };
    for (const auto& c : cases) EXPECT_EQ(c.suggest(c.text), c.expected) << c.text << ": " << c.why;
    EXPECT_EQ(suggested<Length>(std::string(100'000, '1').append(" px").c_str()), "") << "no one meant that";
}

TEST(Suggestion, ReadsDatesInLocalForms) {
    const struct {
        const char *text, *expected, *why;
    } cases[] = {
        {"5.03.2024", "2024-03-05", "day, month, year"},
        {"3/25/2024", "2024-03-25", "no month has the number 25"},
        {"03/05/2024", "2024-05-03", "the day first where both would do"},
        {"2024/3/5", "2024-03-05", "the year first"},
        {" 2024-3-5 ", "2024-03-05", "nearly ISO"},
        {"29.02.2023", "", "no such day"},
        {"05.03.24", "", "of which century?"},
        {"1.2.3.2024", "", "four numbers"},
        {"05.03/2024", "", "two marks"},
        {"05.03.2024 9:30", "2024-03-05T09:30:00", "with a time of day"},
        {"2024-03-05 14:30:15.250Z", "2024-03-05T14:30:15", "nearly ISO, with a zone"},
        {"2024-03-05T14:30+01:00", "2024-03-05T14:30:00", "without seconds"},
        {"2024-03-05T24:00", "", "no such hour"},
        {"2024-03-05T9", "", "an hour alone"},
        {"2024-03-05 noon", "", "no time in digits"},
    };
    for (const auto& c : cases) EXPECT_EQ(suggestDate(c.text), c.expected) << c.text << ": " << c.why;
}

TEST(Suggestion, ReadsNumbersInLocalForms) {
    const std::pair<const char*, const char*> cases[] = {{"12,5", "12.5"},
                                                         {"12.5 %", "12.5"},
                                                         {"1 234", "1234"},
                                                         {"1,234", "1234"},
                                                         {"-0,5", "-0.5"},
                                                         {"12.5 kg", "12.5"},
                                                         {"n/a", ""},
                                                         {"%", ""},
                                                         {"", ""},
                                                         {"1.234,56", "1234.56"},
                                                         {"1.234.567", "1234567"},
                                                         {"1,234.5", "1234.5"},
                                                         {"1.234,567", "1234.567"},
                                                         {"€ 35", "35"},
                                                         {"35,50 €", "35.50"},
                                                         {"$1,200", "1200"},
                                                         {"−5", "-5"},
                                                         {"12kg", ""},
                                                         {"Q1", ""},
                                                         {"3 of 5", ""},
                                                         {"1st", ""},
                                                         {"-€5", ""}};
    for (const auto& [text, expected] : cases) EXPECT_EQ(suggestNumber(text), expected) << text;
}

}  // namespace
}  // namespace VEXA
