#include <gtest/gtest.h>

#include "tests/engine/EngineTestTools.h"
#include "vexa/cartesian/VexaPlotArea.h"
#include "vexa/pie/VexaPie.h"
#include "vexa/spider/VexaSpider.h"

namespace VEXA {
namespace {

using namespace Testing;

VexaPlotArea& plotOf(VexaRoot& root) { return static_cast<VexaPlotArea&>(*root.getBodies()[0]); }

/// The only data point of a chart of that kind: root > plot-area > chart > serie > data-point.
const VexaDataPoint& onlyPoint(VexaRoot& root) {
    return *plotOf(root).getCharts()[0]->getSeries()[0]->getDataPoints()[0];
}

std::string plotWith(const std::string& chart, const std::string& serie, const std::string& point,
                     const std::string& plot = "", const std::string& root = "") {
    return rootWith(root, "<plot-area " + plot + "><line-chart " + chart + "><serie " + serie + "><data-point " +
                              point + "/></serie></line-chart></plot-area>");
}

TEST(EngineInheritance, NearestAncestorThatCarriesTheAttributeDecides) {
    const struct {
        std::string document;
        const char* attribute;
        const char* value;
        const char* why;
    } cases[] = {
        {plotWith("", R"(fill="#010203")", ""), "fill", "#010203", "from the series"},
        {plotWith("", R"(fill="#010203")", R"(fill="#040506")"), "fill", "#040506", "the own value first"},
        {plotWith("", "", "", R"(fill="#010203")", R"(fill="#040506")"), "fill", "",
         "an area's fill is its own and is not handed on"},
        {plotWith(R"(fill="#010203")", "", "", R"(fill="#040506")"), "fill", "#010203",
         "a container that does not know the attribute hands it on"},
        {plotWith(R"(marker="circle")", "", ""), "marker", "circle", "the same for markers"},
        {plotWith(R"(marker="circle")", R"(marker="square")", ""), "marker", "square", "the nearer one"},
        {plotWith("", "", "", "", R"(font-size="20")"), "font-size", "20", "from the root through everything"},
        {plotWith("", "", "", R"(font-size="30")", R"(font-size="20")"), "font-size", "30", "areas hand fonts on"},
        {plotWith("", R"(font-size="12px")", "", "", R"(font-size="20")"), "font-size", "12",
         "a default that is given stops the inheritance"},
        {plotWith(R"(fill-opacity="0.5")", R"(fill-opacity="1")", ""), "fill-opacity", "1", "and is handed on itself"},
        {plotWith("", "", "", R"(width="50%")"), "width", "20", "a width is no attribute to hand on"},
    };
    for (const auto& c : cases) {
        const auto root = load(c.document);
        EXPECT_EQ(attributeOf(onlyPoint(*root), c.attribute), c.value) << c.why;
    }
}

TEST(EngineInheritance, SeriesFillPaintsItsPoints) {
    const auto root = load(plotWith("", R"(fill="#010203")", ""));
    const auto brush = const_cast<VexaDataPoint&>(onlyPoint(*root)).getFillBrush(ColorAspect::Normal, 0.5F);
    EXPECT_EQ(static_cast<SolidColorBrush&>(*brush).getColor()->rgb(), 0x010203U);
}

TEST(EngineInheritance, TitleHasTheRootsFont) {
    const FixedWidthFonts fonts;
    const auto text = [](const std::string& root, const std::string& title) {
        return drawingCalls(rootWith(root, "<title value=\"T\" " + title + "/>"), "text").at(0);
    };
    const std::string style = R"(font-size="20" font-weight="bold" font-style="italic" font-family="serif")";
    EXPECT_TRUE(text(style, "").says(R"("font":{"family":"serif","size":20,"weight":"bold","style":"italic"})"));
    EXPECT_EQ(text(style, "").origin(), "0,20") << "and is laid out in it";
    EXPECT_TRUE(text(style, R"(font-size="12")").says(R"("size":12,"weight":"bold")")) << "each attribute for itself";
    EXPECT_EQ(text(R"(caption-color="red")", "").fill, "#000000") << "a title's text has a colour of its own";
}

TEST(EngineInheritance, RadarChartsTakeFontsFromAboveAndPaintFromTheirOwn) {
    const std::string chart = R"(<spider-axis id="a" caption="A"/><spider-serie/>)";
    const auto calls = drawingCalls(rootWith(R"(font-size="20" theme="none" fill="#111111")",
                                             R"(<spider fill="#222222" stroke="#333333" caption-color="#444444"
                                             draw-web="false">)" +
                                                 chart + "</spider>"));
    ASSERT_EQ(calls.size(), 5U) << "two backgrounds, a series, a spoke and its caption";
    EXPECT_EQ(calls[2].fill + calls[2].stroke, "") << "the areas' paint is not the series'";
    EXPECT_EQ(calls[3].stroke, "") << "nor the axis's";
    EXPECT_EQ(calls[4].fill, "#444444") << "a caption colour is handed on";
    EXPECT_TRUE(calls[4].says(R"("size":20)"));
}

TEST(EngineInheritance, OtherAttributesThatAreHandedOn) {
    const auto root = load(rootWith("", R"(<pie caption-placement="center"><slice/></pie><legend padding="7"/>)"));
    const auto& pie = static_cast<VexaPie&>(*root->getBodies()[0]);
    EXPECT_EQ(attributeOf(*pie.getSlices()[0], "caption-placement"), "center");

    const auto axis = load(rootWith("", R"(<spider><spider-axis/></spider>)"));
    const auto& spider = static_cast<VexaSpider&>(*axis->getBodies()[0]);
    EXPECT_EQ(attributeOf(*spider.getAxes()[0], "min"), "-2147483648") << "bounds of a spoke stand alone";
}

}  // namespace
}  // namespace VEXA
