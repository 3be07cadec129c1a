#include "fuzz/support/ValueSamples.h"

#include <algorithm>
#include <iterator>

#include "vexa/support/values/Enumerations.h"

namespace VEXA::Fuzz {

namespace {

using Samples = std::span<const std::string_view>;

constexpr std::string_view kBools[] = {"true", "false"};
constexpr std::string_view kNumbers[] = {"0",    "1",   "10",    "0.5",   "-1",       "100",       "1e-6",
                                         "1e38", "45",  "1e-45", "-1e38", "16777216", "-360.0001", "123456.7",
                                         "1e9",  "0.1", "180",   "-0",    "1e6",      "2147483648"};
constexpr std::string_view kLengths[] = {"0",     "1",    "10px", "12pt",  "50%",   "100%",  "-5",   "0.001",  "1e6",
                                         "1e38%", "200",  "1e38", "-1e38", "300px", "1in",   "-50%", "1e-45",  "80",
                                         "3mm",   "1000", "20",   "400",   "1e9",   "1e-30", "none", "1e15px", "0%"};
constexpr std::string_view kDashes[] = {"none", "3 1", "0 0", "1e-6 1e-6", "1e38", "5,5,1", "1 2 3 4 5 6 7 8 9"};
constexpr std::string_view kColors[] = {"none",     "red",     "#123",    "#a0b1c2", "rgb(1, 200, 30)",
                                        "url(#a)",  "url(#b)", "url(#c)", "white",   "rgb(10%, 20%, 30%)",
                                        "url('#a')"};
constexpr std::string_view kTransforms[] = {"rotate(45)",
                                            "scale(0)",
                                            "translate(3, 4) skewX(89.99)",
                                            "scale(1e38)",
                                            "matrix(1 0 0 1 0 0)",
                                            "matrix(1e38 1 1 1e38 0 0)",
                                            "rotate(30 .5 .5)",
                                            "skewY(90)"};
constexpr std::string_view kUnits[] = {"10", "1", "days", "months", "years", "0.5", "1e-6", "automatic", "25", "1e30"};
constexpr std::string_view kViewBoxes[] = {"0 0 400 300", "-5 -5 1e-3 1e9", "0 0 0 0", "1e38 1e38 1 1", "0 0 1 1"};
/// The same few words serve as ids, references, categories, captions and patterns, so that they meet.
constexpr std::string_view kWords[] = {"a",
                                       "b",
                                       "c",
                                       "#a",
                                       "#b",
                                       "#c",
                                       "",
                                       "0.0",
                                       "#,##0.00;(#)",
                                       "0.0% th:. dec:, sign:-",
                                       "d MMM yyyy",
                                       "date:yyyy",
                                       "sans-serif",
                                       "Noto Serif, monospace",
                                       "Jan",
                                       "Feb",
                                       "Total revenue of the year 2024",
                                       "square",
                                       "dash",
                                       "\u0645\u0631\u062D\u0628\u0627 \u0628\u0627\u0644\u0639\u0627\u0644\u0645",
                                       "\u56FE\u8868",
                                       "\U0001F600 e\u0301",
                                       "{0} {1}",
                                       "\U0010FFFD\uE000",
                                       "\u05D0\u0301\u05D1 1",
                                       "\u0915\u094D\u0937",
                                       "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa",
                                       "<&>\"'",
                                       "a  b\tc\nd"};
constexpr std::string_view kValues[] = {"0",          "1",     "12.5",
                                        "-3",         "100",   "1e38",
                                        "-1e38",      "1e-45", "2024-02-29",
                                        "2024-03-01", "Jan",   "Feb",
                                        "0001-01-01", "a",     "9999-12-31T23:59:59",
                                        "b",          "",      "16777217",
                                        "2024-12-31", "1e300", "2024-01-01T12:30"};

constexpr struct {
    std::string_view typeName;
    Samples samples;
} kRows[] = {{"bool", kBools},
             {"float", kNumbers},
             {"FloatOrPercent", kLengths},
             {"Length", kLengths},
             {"SLength", kLengths},
             {"SNullableLength", kLengths},
             {"LengthOrPercent", kLengths},
             {"SLengthOrPercent", kLengths},
             {"DashPattern", kDashes},
             {"Color", kColors},
             {"SColor", kColors},
             {"SNullableColor", kColors},
             {"TransformList", kTransforms},
             {"AxisUnits", kUnits},
             {"ViewBox", kViewBoxes},
             {"Value", kValues}};

}  // namespace

Samples samplesOf(std::string_view typeName) {
    if (const Samples keywords = findKeywords(typeName); !keywords.empty()) return keywords;
    const auto row = std::ranges::find_if(kRows, [&](const auto& r) { return r.typeName == typeName; });
    return row == std::end(kRows) ? Samples(kWords) : row->samples;
}

}  // namespace VEXA::Fuzz
