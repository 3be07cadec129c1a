#include "vexa/schema/ValueTypes.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <utility>

#include "vexa/schema/MarkupText.h"
#include "vexa/support/values/ColorText.h"
#include "vexa/support/values/Enumerations.h"

namespace VEXA {

namespace {

// Patterns see texts with their white space collapsed to single spaces. `[0-9]`, because `\d` has the digits of every
// script.
constexpr std::string_view kDigits = R"(([0-9]+\.?[0-9]*|\.[0-9]+)([eE][+\-]?[0-9]+)?)";
constexpr std::string_view kUnit = "(px|pt|pc|mm|cm|in)?";
constexpr std::string_view kUnitOrPercent = "(px|pt|pc|mm|cm|in|%)?";
constexpr std::string_view kSeparator = "( ?, ?| )";
constexpr std::string_view kZero = R"(-0+(\.0*)?)";  // the one number with a minus that is not negative

// The least number that single precision rounds to infinity: half a step above the largest float.
constexpr std::string_view kFloatEnd = "3.4028235677973366e38";

std::string joined(std::initializer_list<std::string_view> parts) {
    std::string result;
    for (const std::string_view part : parts) result += part;
    return result;
}

std::string number() { return joined({R"([+\-]?)", kDigits}); }
std::string length() { return joined({number(), kUnit}); }
std::string lengthOrPercent() { return joined({number(), kUnitOrPercent}); }

/// An entry behind another one; it needs no separator where its sign shows that it begins.
std::string next(std::string_view unit) { return joined({"(", kSeparator, R"([+\-]?|[+\-]))", kDigits, unit}); }

std::string facet(std::string_view kind, std::string_view value) {
    return joined({"<xs:", kind, " value=\"", escapedMarkup(value), "\"/>\n"});
}

std::string restriction(std::string_view base, const std::string& facets) {
    if (facets.empty()) return joined({"<xs:restriction base=\"", base, "\"/>\n"});
    return joined({"<xs:restriction base=\"", base, "\">\n", facets, "</xs:restriction>\n"});
}

std::string pattern(std::string_view text) { return restriction("xs:token", facet("pattern", text)); }

std::string enumeration(std::span<const std::string_view> words) {
    std::string facets;
    for (const std::string_view word : words) facets += facet("enumeration", word);
    return restriction("xs:token", facets);
}

std::string unionOf(std::string_view members) { return joined({"<xs:union memberTypes=\"", members, "\"/>\n"}); }

/// `[rR][eE][dD]` for "red".
std::string inAnyCase(std::string_view word) {
    std::string result;
    for (const char c : word) {
        const char upper = static_cast<char>(c - 'a' + 'A');
        result += {'[', c, upper, ']'};
    }
    return result;
}

/// `user`, which refers to the type `name`, with its definition and what that refers to.
TypeDefinition with(std::string name, TypeDefinition definition, TypeDefinition user) {
    user.parts.emplace_back(std::move(name), std::move(definition.content));
    std::ranges::move(definition.parts, std::back_inserter(user.parts));
    return user;
}

// Names as people write them first: editors offer an enumeration, and cannot offer a pattern.
TypeDefinition colour() {
    std::string names;
    std::string patterns = facet("pattern", "#[0-9a-fA-F]{3}([0-9a-fA-F]{3})?");
    for (const std::string_view unit : {"", "%"}) {
        const std::string part = joined({number(), unit});
        const std::string start = joined({"[rR][gG][bB]\\( ?", part});
        patterns += facet("pattern", joined({start, "( ?, ?", part, "){2} ?\\)"}));
        patterns += facet("pattern", joined({start, "( ", part, "){2} ?\\)"}));
    }
    for (const ColorName& row : namedColors()) {
        names += facet("enumeration", row.name);
        patterns += facet("pattern", inAnyCase(row.name));
    }
    return {unionOf("vx:ColourName vx:ColourCode"),
            {{"ColourName", restriction("xs:token", names)}, {"ColourCode", restriction("xs:token", patterns)}}};
}

std::string decimal() {
    return restriction("xs:double", facet("pattern", number()) + facet("minExclusive", joined({"-", kFloatEnd})) +
                                        facet("maxExclusive", kFloatEnd));
}

TypeDefinition paint() {
    constexpr std::string_view kAddress = "#[^\"' )]+";
    const std::string urls = joined({"(", kAddress, "|\"", kAddress, "\"|'", kAddress, "')"});
    constexpr std::string_view kNone[] = {"none"};
    TypeDefinition paint{unionOf("vx:NoPaint vx:NoPaintInAnyCase vx:Colour vx:Reference"),
                         {{"NoPaint", enumeration(kNone)},
                          {"NoPaintInAnyCase", pattern(inAnyCase("none"))},
                          {"Reference", pattern(joined({inAnyCase("url"), "\\( ?", urls, " ?\\)"}))}}};
    return with("Colour", colour(), std::move(paint));
}

std::string dashPattern() {
    const std::string dash = joined({R"((\+?)", kDigits, "|", kZero, ")", kUnit});
    return pattern(joined({"(none|", dash, "(", kSeparator, dash, ")*)?"}));
}

std::string viewBox() { return pattern(joined({lengthOrPercent(), "(", next(kUnitOrPercent), "){3}"})); }

/// A function of a transform list: one number and, when given, so many lengths or numbers more.
std::string function(std::string_view name, const std::string& first, std::string_view more) {
    return joined({name, " ?\\( ?", first, more, " ?\\)"});
}

std::string transformList() {
    const std::string oneMore = joined({"(", next({}), ")?"});
    const std::string fiveMore = joined({"(", next({}), "){5}"});
    const std::string lengthMore = joined({"(", next(kUnit), ")?"});
    const std::string centre = joined({"((", next(kUnit), "){2})?"});
    const std::string functions =
        joined({"(", function("matrix", number(), fiveMore), "|", function("translate", length(), lengthMore), "|",
                function("scale", number(), oneMore), "|", function("rotate", number(), centre), "|",
                function("skew[XY]", number(), {}), ")"});
    return pattern(joined({"(", functions, "( ?,? ?", functions, ")*)?"}));
}

TypeDefinition axisStep() {
    constexpr std::string_view kWords[] = {"automatic", "days", "months", "years"};
    return {unionOf("vx:AxisStepWord vx:AxisStepNumber"),
            {{"AxisStepWord", enumeration(kWords)},
             {"AxisStepNumber", restriction("vx:Number", facet("minExclusive", "0"))},
             {"Number", decimal()}}};
}

TypeDefinition numberOrPercent() {
    return {unionOf("vx:Number vx:Percentage"),
            {{"Percentage", pattern(joined({number(), "%"}))}, {"Number", decimal()}}};
}

}  // namespace

std::string_view titleOf(const XmlValueType& type) noexcept {
    static constexpr std::pair<std::string_view, std::string_view> kTitles[] = {
        {"String", "Text"},
        {"bool", "Boolean"},
        {"float", "Number"},
        {"FloatOrPercent", "Number or percentage"},
        {"Length", "Length"},
        {"SLength", "Length"},
        {"SNullableLength", "Length"},
        {"LengthOrPercent", "Length or percentage"},
        {"SLengthOrPercent", "Length or percentage"},
        {"Color", "Colour"},
        {"SColor", "Paint"},
        {"SNullableColor", "Paint"},
        {"Value", "Number, date or text"},
        {"AxisUnits", "Step of an axis"},
        {"DashPattern", "Dash pattern"},
        {"TransformList", "Transform list"},
        {"ViewBox", "View box"},
        {"ChartTheme", "Theme"},
    };
    const auto* const row =
        std::ranges::find(kTitles, type.name(), &std::pair<std::string_view, std::string_view>::first);
    return row == std::end(kTitles) ? type.name() : row->second;
}

std::string schemaNameOf(const XmlValueType& type) {
    std::string name;
    bool startsWord = true;
    for (const char c : titleOf(type)) {
        const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
        if (isLetter) name += startsWord && c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
        startsWord = !isLetter;
    }
    return name;
}

TypeDefinition defineType(const XmlValueType& type) {
    constexpr std::string_view kBooleans[] = {"true", "false"};
    const std::string_view title = titleOf(type);
    if (title == "Boolean") return {enumeration(kBooleans), {}};
    if (title == "Number") return {decimal(), {}};
    if (title == "Number or percentage") return numberOrPercent();
    if (title == "Length") return {pattern(length()), {}};
    if (title == "Length or percentage") return {pattern(lengthOrPercent()), {}};
    if (title == "Colour") return colour();
    if (title == "Paint") return paint();
    if (title == "Step of an axis") return axisStep();
    if (title == "Dash pattern") return {dashPattern(), {}};
    if (title == "Transform list") return {transformList(), {}};
    if (title == "View box") return {viewBox(), {}};
    if (const auto keywords = findKeywords(type.name()); !keywords.empty()) return {enumeration(keywords), {}};
    return {restriction("xs:string", {}), {}};
}

}  // namespace VEXA
