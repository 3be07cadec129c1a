#include <gtest/gtest.h>

#include "tests/engine/EngineTestTools.h"
#include "vexa/spider/VexaSpider.h"
#include "vexa/surfaces/NullSurface.h"

namespace VEXA {
namespace {

using namespace Testing;

std::string point(const std::string& axis, const std::string& value) {
    return "<spider-data-point axis-id=\"" + axis + "\" value=\"" + value + "\"/>";
}
std::string serie(const std::string& points, const std::string& attributes = "") {
    return "<spider-serie " + attributes + ">" + points + "</spider-serie>";
}
/// Axes a, b, c, … with these attributes.
std::string axes(int count, const std::string& attributes) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += std::string("<spider-axis id=\"") + static_cast<char>('a' + i) + "\" " + attributes + "/>";
    }
    return text;
}
const std::string kNoWeb = R"(draw-web="false")";
const std::string kUpTo50 = R"(min="0" max="50")";

VexaSpider& spiderOf(VexaRoot& root) { return static_cast<VexaSpider&>(*root.getBodies()[0]); }

TEST(SpiderChart, SpokesPointTo12And4And8OClock) {
    const auto lines = drawingCalls(spiderWith("", axes(3, kUpTo50 + R"( stroke="#123456")") + serie("")), "line");
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0].points, "0,0 0,-150");
    EXPECT_EQ(lines[1].points, "0,0 129.9,75");
    EXPECT_EQ(lines[2].points, "0,0 -129.9,75");
    EXPECT_EQ(lines[2].stroke, "#123456");
    EXPECT_EQ(lines[2].transform, "1 0 0 1 200 150") << "the origin is the centre of the area";
}

TEST(SpiderChart, AreaMovesAndBoundsTheChart) {
    const std::string area = R"(x="10" y="20" width="50%" height="200")";
    const auto lines = drawingCalls(spiderWith(area, axes(1, kUpTo50) + serie("")), "line");
    EXPECT_EQ(lines.at(0).points, "0,0 0,-100") << "half of the shorter side";
    EXPECT_EQ(lines.at(0).transform, "1 0 0 1 110 120");
}

TEST(SpiderChart, SeriesAreClosedPolygonsWithACornerOnEachSpoke) {
    const std::string four = axes(4, kUpTo50);
    const struct {
        std::string points;
        const char* polygon;
        const char* why;
    } cases[] = {
        {point("a", "50") + point("b", "50") + point("c", "50") + point("d", "50"), "0,-150 150,0 0,150 -150,0",
         "the maximum everywhere: the square through the tips"},
        {point("d", "10") + point("b", "20") + point("a", "50") + point("c", "30"), "0,-150 60,0 0,90 -30,0",
         "the order is that of the axes, not that of the points"},
        {point("a", "50") + point("c", "50"), "0,-150 0,0 0,150 0,0", "a missing point is the centre"},
        {point("a", "10") + point("a", "40") + point("b", "50") + point("c", "50") + point("d", "50"),
         "0,-30 150,0 0,150 -150,0", "of two points for an axis the first one counts"},
        {point("a", "-10") + point("b", "50") + point("c", "50") + point("d", "50"), "0,30 150,0 0,150 -150,0",
         "below the minimum: the other side of the centre"},
        {point("A", "50") + point("b", "50") + point("c", "50") + point("d", "50"), "0,0 150,0 0,150 -150,0",
         "ids are case-sensitive"},
        {point("nowhere", "10"), "0,0 0,0 0,0 0,0", "a point for an axis that is not there is not drawn"},
    };
    for (const auto& c : cases) {
        const auto paths = drawingCalls(spiderWith(kNoWeb, four + serie(c.points, R"(fill="red")")), "path");
        ASSERT_EQ(paths.size(), 1U) << c.why;
        EXPECT_EQ(paths[0].points, c.polygon) << c.why;
        EXPECT_EQ(paths[0].verbs, "MLLLZ") << c.why;
        EXPECT_EQ(paths[0].fill, "#ff0000") << c.why;
    }
}

TEST(SpiderChart, ScaleIsSharedByAllSpokes) {
    const std::string points = point("a", "87") + point("b", "-23");
    const struct {
        std::string first;
        std::string second;
        SpiderScale scale;
        const char* why;
    } cases[] = {
        {"", "", {-25, 90}, "from the data, rounded outward"},
        {R"(min="-50" max="100")", R"(min="-60" max="120")", {-60, 120}, "the widest of the bounds"},
        {R"(min="0" max="100")", R"(min="0")", {0, 90}, "one axis without maximum: the data decides"},
        {R"(min="0" max="100")", R"(max="50")", {-25, 100}, "one axis without minimum"},
        {R"(min="0" max="10")", R"(min="0" max="20")", {0, 20}, "explicit bounds cut the data"},
    };
    for (const auto& c : cases) {
        const auto root = load(spiderWith(
            "", "<spider-axis id=\"a\" " + c.first + "/><spider-axis id=\"b\" " + c.second + "/>" + serie(points)));
        EXPECT_EQ(spiderOf(*root).getValueRange(), c.scale) << c.why;
        EXPECT_EQ(spiderOf(*root).getPosition(c.scale.max), 1) << c.why;
    }
}

TEST(SpiderChart, WebIsDrawnFromTheInnermostToTheOutermostRing) {
    const auto rings =
        drawingCalls(spiderWith(R"(web-stroke="#cccccc")", axes(4, R"(min="0" max="100")") + serie("", "")), "path");
    ASSERT_EQ(rings.size(), 26U + 1U) << "0, 4, …, 96, 100 and the series";
    EXPECT_EQ(rings[0].points, "0,0 0,0 0,0 0,0");
    EXPECT_EQ(rings[1].points, "0,-6 6,0 0,6 -6,0") << "4 of 100 on a radius of 150";
    EXPECT_EQ(rings[25].points, "0,-150 150,0 0,150 -150,0");
    EXPECT_EQ(rings[25].stroke, "#cccccc");
    EXPECT_EQ(rings[25].fill, "");
    EXPECT_EQ(rings[26].stroke, "") << "the series does not keep the web's stroke";
}

TEST(SpiderChart, UnitFrequencySetsTheStepBetweenRings) {
    const std::string web = R"(unit-frequency="30")";
    const auto root = load(spiderWith(web, axes(3, R"(min="0" max="100")") + serie("")));
    VexaRenderContext context(make<NullSurface>(), 400, 300);
    EXPECT_EQ(shown(spiderOf(*root).getWebValues(context)), "0 30 60 90 100");
}

TEST(SpiderChart, WebStrokeHasAttributesOfItsOwn) {
    const std::string web = R"(web-stroke="#00f" web-stroke-opacity="0.5" web-stroke-width="2pt"
        web-stroke-linecap="round" web-stroke-linejoin="bevel" web-stroke-miterlimit="5" web-stroke-dasharray="3 1"
        web-stroke-dashoffset="2" stroke="red" stroke-width="9" opacity="0.1")";
    const auto calls = drawingCalls(spiderWith(web, axes(3, kUpTo50) + serie("")), "path");
    EXPECT_TRUE(calls.at(0).says(
        R"("stroke":{"brush":{"type":"solid","color":"#0000ff","opacity":0.5},"width":2.6666667,"cap":"round",)"
        R"("join":"bevel","miterlimit":5,"dash":{"array":[3,1],"offset":2}})"))
        << calls[0].json;

    const std::string plain = spiderWith(R"(opacity="0.1")", axes(3, kUpTo50) + serie(""));
    EXPECT_TRUE(drawingCalls(plain, "path")
                    .at(0)
                    .says(R"("stroke":{"brush":{"type":"solid","color":"#000000","opacity":1},"width":1,"cap":"butt",)"
                          R"("join":"miter","miterlimit":2})"))
        << "by default a thin black line; the overall opacity is the background's";
}

TEST(SpiderChart, WebStrokeMayBeAGradient) {
    const std::string defs =
        R"(<defs><linear-gradient id="g"><stop offset="0" stop-color="red"/></linear-gradient></defs>)";
    const std::string chart = axes(3, kUpTo50) + serie("");
    const auto found = drawingCalls(
        rootWith(R"(theme="none")", R"x(<spider web-stroke="url(#g)">)x" + chart + "</spider>" + defs), "path");
    EXPECT_EQ(found.at(0).stroke, "linear");

    const CapturedLog log;
    const auto missing = drawingCalls(spiderWith(R"x(web-stroke="url(#nowhere)")x", chart), "path");
    EXPECT_EQ(missing.at(0).stroke, "");
    EXPECT_EQ(log.codes(), "34001");
}

TEST(SpiderChart, WebWithoutStrokeIsRefused) {
    const std::string chart = axes(3, kUpTo50) + serie("");
    const std::string none = rootWith("", "\n  <spider web-stroke=\"none\">" + chart + "</spider>");
    EXPECT_EQ(failureOf([&] { draw(none); }), "UnreacheableCodeException 2001 VexaSpider:159 at 2:3");
    EXPECT_NE(messageOf([&] { draw(none); }).find("draw-web"), std::string::npos) << "the message says what would do";
    EXPECT_EQ(drawingCalls(spiderWith(R"(web-stroke="none" draw-web="false")", chart), "path").size(), 1U)
        << "nobody asks for the stroke of a web that is not drawn";
}

TEST(SpiderChart, WithoutSeriesOrAxesOnlyTheBackgroundIsPainted) {
    for (const std::string& content : {axes(3, kUpTo50), serie(point("a", "1")), std::string()}) {
        const auto calls = drawingCalls(spiderWith(R"(fill="#eeeeee" x="5" width="50%")", content));
        ASSERT_EQ(calls.size(), 2U) << content;
        EXPECT_EQ(calls[1].op, "rectangle");
        EXPECT_EQ(calls[1].box(), "5,0 200 x 300");
        EXPECT_EQ(calls[1].fill, "#eeeeee");
    }
}

TEST(SpiderChart, PaintsBackgroundWebSeriesAndAxesInThisOrder) {
    const std::string axis = R"(<spider-axis id="a" max="50" min="0" stroke="#0a0a0a" caption="A"/>)";
    const std::string chart = axis + serie("", R"(fill="#010101")") + serie("", R"(fill="#020202")") + axis;
    std::string order;
    for (const auto& call : drawingCalls(spiderWith(R"(unit-frequency="50" fill="#0f0f0f")", chart))) {
        order += call.op + call.fill + ' ';
    }
    EXPECT_EQ(order, "rectangle rectangle#0f0f0f path path path#010101 path#020202 line text#000000 line text#000000 ")
        << "root and spider, two rings, both series, both axes with their captions";
}

TEST(SpiderChart, CaptionsStandOutsideTheTips) {
    const FixedWidthFonts fonts;
    const std::string style =
        kUpTo50 + R"( font-size="10" caption="ABCDE" caption-color="#00aa00" stroke="red" fill="blue")";
    const auto texts = drawingCalls(spiderWith("", axes(4, style) + serie("")), "text");
    ASSERT_EQ(texts.size(), 4U);
    EXPECT_EQ(texts[0].origin(), "-15,-154") << "30 px of text centred, 4 px above the tip";
    EXPECT_EQ(texts[1].origin(), "154,5");
    EXPECT_EQ(texts[2].origin(), "-15,164");
    EXPECT_EQ(texts[3].origin(), "-184,5");
    EXPECT_EQ(texts[3].fill, "#00aa00") << "not the axis's own fill";
    EXPECT_FALSE(texts[3].says("stroke"));

    const auto moved = drawingCalls(spiderWith("", axes(1, style + R"( caption-offset="10")") + serie("")), "text");
    EXPECT_EQ(moved.at(0).origin(), "-15,-160");
    EXPECT_TRUE(drawingCalls(spiderWith("", axes(1, kUpTo50 + R"( caption="  ")") + serie("")), "text").empty())
        << "a blank caption is no caption";
}

TEST(SpiderChart, LookUpFailsExactlyWhenItMeetsAPointWithoutAxis) {
    const std::string nameless = R"(<spider-data-point value="1"/>)";
    const struct {
        int axisCount;
        std::string points;
        bool fails;
        const char* why;
    } cases[] = {
        {2, point("a", "1") + nameless + point("b", "1"), true, "the search for b passes it"},
        {2, point("b", "1") + point("a", "1") + nameless, false, "every axis finds its point before"},
        {3, point("b", "1") + point("a", "1") + nameless, true, "the search for c reaches the end"},
        {1, nameless, true, "nothing stands before it"},
        {2, point("a", "1") + point("b", "1") + R"(<spider-data-point axis-id="" value="1"/>)" + point("c", "1"), false,
         "an empty id counts as none, and is not reached"},
    };
    for (const auto& c : cases) {
        const std::string document = spiderWith("", axes(c.axisCount, kUpTo50) + serie("\n" + c.points));
        const std::string failure = failureOf([&] { draw(document); });
        EXPECT_EQ(failure.substr(0, failure.find(" at")), c.fails ? "Exception 34000 VexaSpiderDataPoint:27" : "")
            << c.why;
    }
    EXPECT_EQ(failureOf([&] { draw(spiderWith("", axes(1, kUpTo50) + serie("\n  " + nameless))); }),
              "Exception 34000 VexaSpiderDataPoint:27 at 2:3")
        << "the place is the point's";
}

TEST(SpiderChart, ASingleLookUpSearchesInOrder) {
    const auto root =
        load(spiderWith("", serie(point("a", "1") + point("b", "2") + point("b", "3") + "<spider-data-point/>")));
    const VexaSpiderSerie& first = *spiderOf(*root).getSeries()[0];
    EXPECT_EQ(first.getDataPoint("b")->getValue(), 2);
    EXPECT_EQ(failureOf([&] { first.getDataPoint("c"); }).substr(0, 15), "Exception 34000");
    EXPECT_EQ(first.getDataRange(), (SpiderExtent{0, 3})) << "a point without value counts as 0";
}

TEST(SpiderChart, SeriesAnswerForThemselvesToo) {
    const auto root = load(spiderWith("", axes(4, kUpTo50) + serie(point("a", "50") + point("b", "25"))));
    VexaRenderContext context(make<NullSurface>(), 400, 300);
    EXPECT_EQ(shown(spiderOf(*root).getSeries()[0]->getPoints(context)), "0,-150 75,0 0,0 0,0");
    EXPECT_EQ(spiderOf(*root).getSerieCount(), 1);

    const auto lonely = make<VexaSpiderSerie>();
    EXPECT_EQ(failureOf([&] { lonely->getPoints(context); }), "NullPointerException 2002 SmartPtr:118 at 0:0")
        << "a series without a spider has no axes to ask";
}

TEST(SpiderChart, ManyAxesAndPointsKeepTheirPairs) {
    // A thousand axes with a point each, in opposite orders: every point still finds its spoke.
    std::string content;
    std::string points;
    for (int i = 0; i < 1000; ++i) content += R"(<spider-axis min="0" max="1000" id=")" + std::to_string(i) + "\"/>";
    for (int i = 999; i >= 0; --i) points += point(std::to_string(i), std::to_string(i));
    const auto root = load(spiderWith("", content + serie(points)));
    VexaRenderContext context(make<NullSurface>(), 400, 300);
    const auto corners = spiderOf(*root).getSeries()[0]->getPoints(context);
    ASSERT_EQ(corners.size(), 1000U);
    EXPECT_EQ(shown(corners[250]), "37.5,0") << "a quarter of the way round, a quarter of the radius";
    EXPECT_EQ(shown(corners[500]), "0,75");
    EXPECT_EQ(shown(corners[750]), "-112.5,0");
}

}  // namespace
}  // namespace VEXA
