#include "vexa/schema/ValueTypes.h"

#include <map>

#include "tests/schema/SchemaTestTools.h"
#include "vexa/support/values/ColorText.h"
#include "vexa/support/values/Enumerations.h"

namespace VEXA::Testing {
namespace {

/// An attribute of each type, and where it stands.
struct Place {
    const ElementEntry* element;
    const AttributeEntry* attribute;
};
std::map<std::string_view, Place> placesOfTypes(const Vocabulary& vocabulary) {
    std::map<std::string_view, Place> places;
    const auto add = [&](const ElementEntry& element, const std::vector<AttributeEntry>& attributes) {
        for (const AttributeEntry& attribute : attributes)
            places.try_emplace(attribute.type->name(), Place{&element, &attribute});
    };
    for (const ElementEntry& element : vocabulary.elements()) {
        add(element, element.attributes);
        for (const BaseEntry* base = element.base; base != nullptr; base = base->base) add(element, base->attributes);
    }
    return places;
}

struct Texts {
    std::vector<std::string> taken;
    std::vector<std::string> refused;
};

const Texts kNumbers{
    {"5", "-5", "+5", "5.", ".5", "-.5", "00.10", "1e3", "1E+3", "1e-3", " 5", "5 ", "\t5\n", "1e-400", "0e999",
     "3.4028235e38", "-3.4028235e38"},
    {"",    " ",     ".",    "-",   "+",   "+-5", "-+5", "--5",    "1e",           "1e+",   "e3", "5 5",
     "5,5", "1,000", "0x10", "NaN", "inf", "INF", "5f",  "\u0665", "3.4028236e38", "-1e39", "5%"}};
const Texts kLengths{
    {"5", "-5", "+5.", ".5px", "5px", "5pt", "5pc", "5mm", "5cm", "5in", "1e2px", " 5px ", "5\n"},
    {"", "px", "5 px", "5PX", "5em", "5p", "5pxx", "5ex", "5%", "5px5", "5,5px", "e2px", "1epx", "5;", "5px 5px"}};
const Texts kColours{
    {"red", "RED", "DarkSlateGray", "darkslategrey", "lightgoldenrodyellow", "rebeccapurple", " red ", "#abc",
     "#ABCDEF", "#a1B2c3", "rgb(1,2,3)", "rgb(1 2 3)", "RGB( 1 , 2 , 3 )", "rgb(1%,2%,3%)", "rgb(1% 2% 3%)",
     "rgb(-1, 300, 1.5)", "rgb(1 ,2, 3)"},
    {"",           "blu",         "re d",        "#ab",         "#abcd",        "#abcde",        "#abcdefa",
     "#ggg",       "# abc",       "abc",         "rgb(1,2)",    "rgb(1,2,3,4)", "rgb(1%,2,3)",   "rgb(1,2 3)",
     "rgb(1 2,3)", "rgb (1,2,3)", "rgb(1,2,3",   "rgb(1,,2,3)", "rgb(1-2-3)",   "rgba(1,2,3,1)", "url(#a)",
     "none",       "transparent", "currentColor"}};

/// What each type takes and refuses, by the type's name. Of enumerations the words are taken from their tables.
std::map<std::string_view, Texts> tableOfTexts() {
    std::map<std::string_view, Texts> table;
    table["String"] = {{"", " ", "a", "\t", "<&>\"'", "url(#a)", "\u0665"}, {}};
    table["Value"] = {{"", " ", "5", "2024-01-01", "2024-13-01", "a", "1,5", "<"}, {}};
    table["bool"] = {{"true", "false", " true", "false\n"}, {"", "True", "TRUE", "1", "0", "yes", "true false", "t"}};
    table["float"] = kNumbers;
    for (const char* name : {"Length", "SLength", "SNullableLength"}) table[name] = kLengths;
    for (const char* name : {"LengthOrPercent", "SLengthOrPercent"}) {
        table[name] = {kLengths.taken, {"", "%", "5 %", "5%%", "5px%", "5%px", "px", "5 px", "5em", "e%", "auto"}};
        for (const char* text : {"5%", "-5%", ".5%", "1e2%", " 62.5% "}) table[name].taken.emplace_back(text);
    }
    table["FloatOrPercent"] = {{"0.5", "1", "-1", "50%", " 50% ", "1e1%", "1e-400", "3.4028235e38"},
                               {"", "%", "50 %", "50%%", "0.5px", "half", "3.4028236e38", "1 2", "NaN%", "5% 5%"}};
    table["Color"] = kColours;
    for (const char* name : {"SColor", "SNullableColor"}) {
        table[name] = {
            kColours.taken,
            {"",          "blu",      "#ab",         "rgb(1,2)", "no",        "none none",   "none,",      "inherit",
             "url()",     "url( )",   "url(#a",      "url #a",   "url(#a b)", "url(#a) red", "url('#a\")", "url(\"#a)",
             "url(#a\")", "url('#a'", "url(''#a'')", "url(')",   "url (#a)",  "url(' #a')"}};
        for (const char* text : {"none", "None", " NONE ", "url(#a)", "URL(#a)", "url( #a )", "url('#a')",
                                 "url( \"#a\" )", "url(#a(b)", "url(#\u00e9-1.2)"})
            table[name].taken.emplace_back(text);
    }
    table["AxisUnits"] = {{"automatic", "days", "months", "years", " days ", "10", ".5", "1e3"},
                          {"", "Days", "day", "weeks", "10 days", "auto", "1px", "5%", "NaN"}};
    table["DashPattern"] = {
        {"", " ", "none", " none ", "5", "5 3", "5,3", "5 , 3", "5 ,3 , 2", "0 0", "-0 5", "5px 3mm", "5\n3", "1e1 .5"},
        {"None", "none 5", "5 none", ",", "5,", ",5", "5,,3", "5 3,", "-5", "5 -3", "5%", "5-3", "5px3px", "5 px",
         "a"}};
    table["ViewBox"] = {{"0 0 4 3", "0,0,4,3", " 0 , 0 4,3 ", "-1-1 4 3", "0 0+4 3", "0px 0mm 50% 3in", "1e1 0 4 3",
                         "0\t0\n4 3", ".5 .5 4. 3"},
                        {"", "0 0 4", "0 0 4 3 2", "0 0 4 3,", ",0 0 4 3", "0,,0 4 3", "0 0 4em 3", "none",
                         "0 0 4 3 px", "1.5 2 3", "0;0;4;3"}};
    table["TransformList"] = {
        {"", " ", "matrix(1 0 0 1 0 0)", "matrix(1-1 0 1+2 0)", "translate(1)", "translate(1px,2mm)", "translate(1-2)",
         "scale(2)", "scale(2,3)", "rotate(45)", "rotate(45 1 2)", "rotate(45,1px,2px)", "skewX(5)", "skewY(-5)",
         " rotate ( 45 ) ", "rotate(45) scale(2)", "rotate(45) , scale(2),skewX(1)skewY(2)", "rotate(\n45\n)"},
        {"rotate",          "rotate()",      "rotate(45 1)",      "rotate(45 1 2 3)",      "rotate(45deg)",
         "rotate(45",       "rotate 45",     "rotate(45),",       ",rotate(45)",           "rotate(45),,scale(2)",
         "Rotate(45)",      "skewX(5 5)",    "matrix(1 0 0 1 0)", "matrix(1 0 0 1 0 0 0)", "matrix(1 0 0 1 0 0px)",
         "scale(2px)",      "translate(5%)", "translate(1,)",     "translate(1,,2)",       "translate(,1)",
         "translate(1 2 3)"}};
    return table;
}

Texts keywordTexts(const XmlValueType& type) {
    Texts texts;
    for (const std::string_view keyword : findKeywords(type.name())) {
        const std::string word(keyword);
        for (const std::string& taken : {word, " " + word, word + "\n"}) texts.taken.push_back(taken);
        std::string upper = word;
        upper[0] = static_cast<char>(upper[0] - 'a' + 'A');
        for (const std::string& refused :
             {upper, word + "x", word + " " + word, word + ",", std::string("0"), std::string()})
            texts.refused.push_back(refused);
    }
    return texts;
}

bool parses(const XmlValueType& type, const std::string& text) {
    XmlValueBox* const value = type.parse(text);
    if (value != nullptr) type.release(value);
    return value != nullptr;
}

// The parser and the schema each judge the same texts, and both must be right.
TEST(ValueTypes, SchemaAndParserTakeTheSameTexts) {
    const Vocabulary vocabulary = Vocabulary::ofCharts();
    const std::map<std::string_view, Texts> table = tableOfTexts();
    std::vector<Judged> cases;
    for (const auto& [name, place] : placesOfTypes(vocabulary)) {
        const XmlValueType& type = *place.attribute->type;
        const bool isEnumeration = !findKeywords(name).empty();
        ASSERT_TRUE(isEnumeration || table.contains(name)) << name << " has no row in the table";
        const Texts texts = isEnumeration ? keywordTexts(type) : table.at(name);
        const auto judge = [&, place = place](const std::string& text, bool isTaken) {
            const std::string element(place.element->name);
            const std::string attribute = std::string(place.attribute->name) + "=" + quotedAttribute(text);
            // A page is itself around what is in it.
            const std::string document =
                place.element->parents.empty()
                    ? "<root xmlns='http://vexa-charts.org/2008/vx' " + attribute + "/>"
                    : documentAround(vocabulary, element, "<" + element + " " + attribute + "/>");
            cases.push_back({document, std::string(type.name()) + " \"" + text + '"', isTaken});
            EXPECT_EQ(parses(type, text), isTaken) << "parser: " << cases.back().why;
        };
        for (const std::string& text : texts.taken) judge(text, true);
        for (const std::string& text : texts.refused) judge(text, false);
    }
    expectVerdicts(cases);
}

TEST(ValueTypes, EveryColourNameIsKnownInAnyCase) {
    std::vector<Judged> cases;
    for (const ColorName& row : namedColors()) {
        std::string name(row.name);
        for (std::size_t i = 0; i < name.size(); i += 2) name[i] = static_cast<char>(name[i] - 'a' + 'A');
        cases.push_back({"<root xmlns='http://vexa-charts.org/2008/vx' fill='" + name + "'/>", name});
    }
    EXPECT_EQ(cases.size(), 148U);
    expectVerdicts(cases);
}

// The texts that the reference shows, read as their types.
TEST(ValueTypes, ExamplesOfTheReferenceAreRight) {
    const Vocabulary vocabulary = Vocabulary::ofCharts();
    std::size_t count = 0;
    for (const auto& [name, place] : placesOfTypes(vocabulary)) {
        const NoteSection* const section = findSection(vocabulary.chapters(), titleOf(*place.attribute->type));
        EXPECT_TRUE(section != nullptr || !findKeywords(name).empty()) << name << " is told nowhere";
        if (section == nullptr) continue;
        for (const auto& [example, meaning] : section->rows) {
            EXPECT_TRUE(parses(*place.attribute->type, std::string(example))) << name << ' ' << example;
            ++count;
        }
    }
    EXPECT_GT(count, 30U);
}

}  // namespace
}  // namespace VEXA::Testing
