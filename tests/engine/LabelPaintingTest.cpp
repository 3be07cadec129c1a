#include "tests/engine/PlotTestTools.h"

namespace VEXA::Testing {
namespace {

/// A fixed plot of 200 px by 100 px with one labelled axis; the other one shows nothing but its line.
std::string categories(const std::string& axis, const std::string& labels, const std::string& data = "A=10 B=-10 C=5",
                       const std::string& content = "") {
    return fixedPlot("", lineChart(data) + "<category-axis " + axis + "><display-values " + labels + ">" + content +
                             "</display-values></category-axis><value-axis min='-10' max='10' unit='10'/>");
}

std::string values(const std::string& axis, const std::string& labels, const std::string& data = "A=9",
                   const std::string& content = "") {
    return fixedPlot("", lineChart(data) + "<category-axis/><value-axis " + axis + "><display-values " + labels + ">" +
                             content + "</display-values></value-axis>");
}

TEST(LabelPainting, TextsStandAtTheirValues) {
    const WithFonts fonts;
    const struct {
        std::string xml, texts;
        const char* why;
    } cases[] = {
        {values("unit='5'", ""), "0 -10,105; 5 -10,55; 10 -16,5; ", "left of the line, 4 px away, right-aligned"},
        {values("unit='5' intersection='at-maximum'", "offset='7'"), "0 207,105; 5 207,55; 10 207,5; ", "right of it"},
        {values("unit='10'", "orientation='perpendicular'"), "0 -4,103 turned -90; 10 -4,6 turned -90; ",
         "reading upward on the left"},
        {values("unit='10' intersection='at-maximum'", "orientation='perpendicular'"),
         "0 204,97 turned 90; 10 204,-6 turned 90; ", "downward on the right"},
        {categories("intersection='at-minimum'", ""), "A -3,114; B 97,114; C 197,114; ", "below the plot"},
        {categories("intersection='at-maximum'", ""), "A -3,-4; B 97,-4; C 197,-4; ", "above it"},
        {categories("intersection='at-minimum'", "orientation='diagonal'"),
         "A -4.24,115.31 turned -45; B 95.76,115.31 turned -45; C 195.76,115.31 turned -45; ",
         "6/√2 to the left, 4 + 16/√2 down"},
        {categories("", ""), "A -3,114; B 97,114; C 197,114; ", "an axis at zero has its labels at the foot"},
        {categories("orientation='vertical' intersection='at-cross-value'", ""), "A -10,105; B -10,55; C -10,5; ",
         "upright at the left edge"},
        {categories("orientation='vertical'", "draw-at-min='false'"), "A 90,105; B 90,55; C 90,5; ", "or at its line"},
        {values("unit='10' min='-10'", "draw-values='false'"), "", "none"},
    };
    for (const auto& c : cases) EXPECT_EQ(textsOf(c.xml), c.texts) << c.why;
}

TEST(LabelPainting, TextsAreReplacedOrFormatted) {
    const WithFonts fonts;
    const std::string replaced = "<value value='5' display='half'/><value value='5' display='no'/>";
    const std::string dated = "2024-03-01=1 2024-03-05=2";
    const auto shownBy = [&](const std::string& xml) {
        std::string texts;
        for (const DrawCall& call : drawingCalls(xml, "text")) texts += call.text + ' ';
        return texts;
    };
    EXPECT_EQ(shownBy(values("unit='5'", "format='0.0'", "A=9", replaced)), "0.0 half 10.0 ");
    EXPECT_EQ(shownBy(values("unit='5'", "format='0.0' replace-values='false'", "A=9", replaced)), "0 5 10 ");
    EXPECT_EQ(shownBy(values("unit='0.1'", "format=''", "A=0.2")), "0 0.1 0.2 0.3 ") << "25 of a hundredth, rounded up";
    EXPECT_EQ(shownBy(categories("unit='days'", "format='d MMM'", dated)), "1 Mar 2 Mar 3 Mar 4 Mar 5 Mar ");
    EXPECT_EQ(shownBy(categories("unit='days'", "", dated)), "2024-03-01 2024-03-03 2024-03-05 ")
        << "60 px each, every 50 px: every other one has no room";
    EXPECT_EQ(shownBy(categories("unit='days'", "adjust-values='false'", dated)),
              "2024-03-01 2024-03-02 2024-03-03 2024-03-04 2024-03-05 ");
    const auto lying = [&](const std::string& replacement) {
        return shownBy(fixedPlot("", lineChart("A=93") +
                                         "<category-axis/><value-axis orientation='horizontal'>"
                                         "<display-values adjust-values='false'>" +
                                         replacement + "</display-values></value-axis>"));
    };
    EXPECT_EQ(lying(""), "0 10 20 30 40 50 60 70 80 90 100 ") << "18 px each on 200 px";
    EXPECT_EQ(lying("<value value='50' display='fifty mm/h'/>"), "0 fifty mm/h 100 ") << "60 px each";
    const CapturedLog log;
    const std::string twice = values("unit='5'", "format='0.0 dec:,'");
    draw(twice);
    EXPECT_EQ(log.records.at(0).code, 34060) << "a format is checked";
}

TEST(LabelPainting, TextsAreNotOutlinedAndHaveTheirOwnColour) {
    const WithFonts fonts;
    const auto calls =
        drawingCalls(values("stroke='red' fill='blue' font-size='20'", "caption-color='#00aa00'"), "text");
    EXPECT_EQ(calls.at(0).fill + calls.at(0).stroke, "#00aa00");
    EXPECT_TRUE(calls.at(0).says(R"("size":20)"));
    EXPECT_EQ(onPage(calls.at(0)), "-16,110") << "and are measured in the font that they are drawn in";
}

TEST(LabelPainting, CaptionsKeepClearOfTheLabels) {
    const WithFonts fonts;
    const std::string upright = "unit='10' caption='Rain' caption-offset='3' ";
    const struct {
        std::string xml, texts;
        const char* why;
    } cases[] = {
        {values(upright, ""), "0 -10,105; 10 -16,5; Rain -21,62 turned -90; ", "12 + 4 + 3 + 2 px left, 24 px long"},
        {values(upright, "draw-values='false'"), "Rain -5,62 turned -90; ", "no labels, no offset of theirs"},
        {categories("intersection='at-minimum' caption='Town'", "offset='6'"),
         "A -3,116; B 97,116; C 197,116; Town 88,130; ", "10 + 10 + 6 + 4 px below"},
        {categories("caption='Town'", ""), "A -3,114; B 97,114; C 197,114; Town 88,128; ", "at the foot, not at zero"},
        {categories("caption='Town'", "draw-at-min='false'"), "A -3,64; B 97,64; C 197,64; Town 88,114; ",
         "nothing between the caption and the foot"},
        {categories("caption='  '", "draw-values='false'"), "", "a blank caption is none"},
    };
    for (const auto& c : cases) EXPECT_EQ(textsOf(c.xml), c.texts) << c.why;
    const auto caption =
        drawingCalls(values("caption='C' stroke='red' fill='blue' caption-color='#00aa00'", ""), "text");
    EXPECT_EQ(caption.back().text + caption.back().fill + caption.back().stroke, "C#00aa00");
}

/// What drawing says when an attribute of an axis, or of its labels, has ordinal 7.
template <class T>
std::string refusal(bool category, bool ofLabels, std::string_view attribute) {
    const auto root = load(fixedPlot("", lineChart("A=1") + "<category-axis><display-values/></category-axis>"
                                                            "<value-axis><display-values/></value-axis>"));
    VexaAxisObject& axis = plotOf(*root).getAxis(category);
    XmlObject& object = ofLabels ? static_cast<XmlObject&>(*axis.getDisplayValues()) : axis;
    object.getTypeInfo()->findAttribute(attribute)->setGiven(object, AttributeBox<T>::make(static_cast<T>(7)));
    const std::string failure = failureOf([&] { root->render(make<NullSurface>(), 400, 300); });
    return failure.substr(0, failure.find(" at "));
}

TEST(LabelPainting, OrdinalsWithoutMeaningAreRefused) {
    const std::string type = "UnreacheableCodeException 2001 ";
    EXPECT_EQ(refusal<AxisOrientation>(false, false, "orientation"), type + "VexaPlotArea:438");
    EXPECT_EQ(refusal<AxisOrientation>(true, false, "orientation"), type + "VexaPlotArea:427");
    EXPECT_EQ(refusal<AxisIntersection>(true, false, "intersection"), type + "VexaAxisObject:396");
    EXPECT_EQ(refusal<AxisIntersection>(false, false, "intersection"), type + "VexaAxisObject:411");
    EXPECT_EQ(refusal<DisplayValOrientation>(false, true, "orientation"), type + "VexaDisplayValues:227");
    EXPECT_EQ(refusal<DisplayValOrientation>(true, true, "orientation"), type + "VexaDisplayValues:262");
    EXPECT_EQ(refusal<DisplayValPlacement>(true, true, "placement"), "") << "on ticks";
    EXPECT_EQ(refusal<AxisDataType>(true, false, "data-type"), "") << "an axis that shows nothing";
}

}  // namespace
}  // namespace VEXA::Testing
