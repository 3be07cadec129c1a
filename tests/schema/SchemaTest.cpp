#include <filesystem>

#include "tests/schema/SchemaTestTools.h"

namespace VEXA::Testing {
namespace {

struct Case {
    std::string document;
    const char* why;
    bool isBeyond = false;  ///< what a schema can say
};

/// Whether the schema takes the documents (except those beyond it), and whether the engine complains of them.
void expectJudged(const std::vector<Case>& cases, bool isValid, bool isToldByTheEngine) {
    std::vector<Judged> judged;
    for (const auto& [document, why, isBeyond] : cases) {
        judged.push_back({document, why, isValid || isBeyond});
        const std::string told = complaints(document);
        EXPECT_EQ(!told.empty(), isToldByTheEngine) << why << '\n' << document << '\n' << told;
    }
    expectVerdicts(judged);
}

std::string page(const std::string& content) {
    return "<root xmlns='http://vexa-charts.org/2008/vx'>" + content + "</root>";
}
const std::string kAxes = "<category-axis/><value-axis/>";
const std::string kSeries = "<serie><data-point category='a' value='1'/></serie>";
std::string plot(const std::string& content) { return page("<plot-area>" + kAxes + content + "</plot-area>"); }
std::string bars(const std::string& attributes) {
    return plot("<bar-chart " + attributes + ">" + kSeries + "</bar-chart>");
}
std::string slice(const std::string& attributes) { return page("<pie><slice value='1' " + attributes + "/></pie>"); }
std::string spider(const std::string& axes, const std::string& points) {
    return page("<spider>" + axes + "<spider-serie>" + points + "</spider-serie></spider>");
}

TEST(Schema, TakesWhatTheEngineTakesSilently) {
    const std::vector<Case> cases = {
        {page(""), "an empty page"},
        {"<?xml version='1.0'?><!-- a --><vx:root xmlns:vx='http://vexa-charts.org/2008/vx'><vx:defs/></vx:root>",
         "a prefix before elements"},
        {"<c:root xmlns:c='http://vexa-charts.org/2008/vx' width=' 480px '><c:title value=''/></c:root>",
         "another prefix, and blanks around a value"},
        {page("<!-- a --><title value='b'> <!-- c --> </title><?d e?>\n"),
         "comments and blanks, also in what is empty"},
        {"<root xmlns='http://vexa-charts.org/2008/vx' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
         "xsi:schemaLocation='http://vexa-charts.org/2008/vx vexa.xsd' xml:lang='en' xmlns:o='urn:o' o:x='1'/>",
         "attributes of other namespaces"},
        {page("<defs/><legend/><defs/><title value='a'/><defs/>"), "what comes once among what comes often"},
        {page("<plot-area><value-axis/><line-chart>" + kSeries + "</line-chart><category-axis/><area-chart>" + kSeries +
              "</area-chart></plot-area>"),
         "axes between charts"},
        {plot("<bar-chart/><line-chart/><area-chart/><bar-chart><serie/></bar-chart>"),
         "charts and series without data"},
        {page("<plot-area><category-axis><grid-lines/><display-values><value value='a' display='b'/><value/>"
              "</display-values><tick-marks/></category-axis><value-axis><tick-marks/><grid-lines/></value-axis>"
              "</plot-area>"),
         "the parts of an axis in any order"},
        {"<root xmlns='http://vexa-charts.org/2008/vx' marker='circle' caption-placement='center' padding='3' "
         "caption-offset='1mm' min='2' max='' fill='none'/>",
         "what is inherited, on an ancestor that has no use for it"},
        {bars("fill='Red' stroke='none' font-size='12pt' marker-width='4' stroke-dasharray=''"),
         "styling on a chart, which hands it on"},
        {plot("<bar-chart><serie marker='square' caption-placement='inside-end'/></bar-chart>"), "on a series"},
        {page("<defs><linear-gradient id='g'><stop/></linear-gradient></defs><pie><slice value='1' caption='' fill=' "
              "url( \"#g\" ) '/></pie>"),
         "a reference to a gradient, with quotes and blanks"},
        {page("<defs><linear-gradient gradientTransform=' '/><linear-gradient/><radial-gradient/></defs>"),
         "gradients without a name"},
        {spider("<spider-axis id='2024'/><spider-axis id='a b'/><spider-axis/><spider-axis/>",
                "<spider-data-point axis-id='2024' value='1'/><spider-data-point axis-id='a b' value='1'/>"),
         "names of axes that are no names of XML, and axes without one"},
    };
    expectJudged(cases, true, false);
}

TEST(Schema, RefusesWhatTheEngineComplainsOf) {
    const std::vector<Case> cases = {
        {"<title xmlns='http://vexa-charts.org/2008/vx'/>", "another top element"},
        {"<nothing xmlns='http://vexa-charts.org/2008/vx'/>", "the element that stands for none, at the top"},
        {"<root/>", "no namespace"},
        {"<root xmlns='http://vexa-charts.org/2008/xv'/>", "another namespace"},
        {page("<nothing/>"), "the element that stands for none"},
        {page("<Title value='a'/>"), "an element in upper case"},
        {page("<x xmlns='urn:x'/>"), "an element of another namespace"},
        {page("text"), "text"},
        {page("<pie><data-point value='1'/></pie>"), "a data point in a pie"},
        {plot("<serie><bar-chart/></serie>"), "swapped nesting"},
        {page("<title value='a'/><title value='b'/>"), "a second title"},
        {page("<legend/><defs/><title value='a'/><legend/>"), "a second legend, with others between"},
        {page("<plot-area><category-axis><tick-marks/><tick-marks/></category-axis><value-axis/></plot-area>"),
         "second tick marks"},
        {page("<plot-area>" + kAxes + "<value-axis/></plot-area>"), "a third axis"},
        {page("<plot-area><category-axis/></plot-area>"), "no value axis"},
        {page("<plot-area><value-axis/><bar-chart/></plot-area>"), "no category axis"},
        {page("<title valeu='a'/>"), "a typo in an attribute"},
        {slice("spider='1'"), "the name of an element"},
        {"<root xmlns='http://vexa-charts.org/2008/vx' xmlns:v='http://vexa-charts.org/2008/vx' v:with='1'/>",
         "a typo behind a prefix"},
        {"<root xmlns='http://vexa-charts.org/2008/vx' theme='blue'/>", "a theme without its variant"},
        {page("<title x='10%'/>"), "a percentage where none may be"},
        {slice("caption-color='none'"), "no colour where one must be"},
        {slice("fill='url(#g)'"), "a reference to what is not there", true},
        {slice("fill='url(g)'"), "a reference without #"},
        {page("<plot-area><category-axis/><value-axis unit='-5'><display-values min='1' "
              "max='9'/></value-axis><bar-chart>" +
              kSeries + "</bar-chart></plot-area>"),
         "a step that leads nowhere"},
        {spider("<spider-axis id='a'/>", "<spider-data-point axis-id='b' value='1'/>"), "an axis that there is not"},
        {spider("<spider-axis id='a'/>", "<spider-data-point value='1'/>"), "a data point of no axis"},
    };
    expectJudged(cases, false, true);
}

// What docs/schema.md tells as differences.
TEST(Schema, IsStricterThanTheEngineInAFewPoints) {
    const std::vector<Case> cases = {
        {"<root xmlns='http://vexa-charts.org/2008/vx' xmlns:v='http://vexa-charts.org/2008/vx' v:width='9'/>",
         "attributes with a prefix"},
        {page("<pie marker='circle'><slice value='1'/></pie>"), "what is inherited, where nothing inside takes it"},
        {page("<defs><linear-gradient id='g'/></defs><defs><radial-gradient id='g'/></defs>"), "gradients of one name"},
        {spider("<spider-axis id='a'/><spider-axis id='a'/>", "<spider-data-point axis-id='a' value='1'/>"),
         "axes of one name"},
        {spider("", "<spider-data-point value='1'/>"), "a data point of no axis, where there is none"},
        {"<root xmlns='http://vexa-charts.org/2008/vx' viewBox='0 0.5.5.5'/>", "numbers told apart by their points"},
    };
    expectJudged(cases, false, false);
}

TEST(Schema, TakesEveryExample) {
    std::vector<Judged> examples;
    for (const char* folder : {"/examples", "/docs/examples", "/tests/engine/golden"}) {
        for (const auto& entry : std::filesystem::directory_iterator(std::string(VEXA_SOURCE_DIR) + folder)) {
            if (entry.path().extension() == ".xml") examples.push_back({contentOf(entry.path()), entry.path()});
        }
    }
    EXPECT_GT(examples.size(), 40U);
    expectVerdicts(examples);
}

}  // namespace
}  // namespace VEXA::Testing
