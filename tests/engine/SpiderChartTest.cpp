#include "tests/engine/EngineTestTools.h"
#include "vexa/spider/VexaSpider.h"

namespace VEXA::Testing {
namespace {

std::string point(const std::string& axis, const std::string& value) {
    return "<spider-data-point axis-id='" + axis + "' value='" + value + "'/>";
}
std::string serie(const std::string& points, const std::string& attributes = "") {
    return "<spider-serie " + attributes + ">" + points + "</spider-serie>";
}
/// Axes a, b, c, … with these attributes.
std::string axes(int count, const std::string& attributes = "min='0' max='50'") {
    std::string text;
    for (char id = 'a'; id < 'a' + count; ++id)
        text += std::string("<spider-axis id='") + id + "' " + attributes + "/>";
    return text;
}

VexaSpider& spiderOf(VexaRoot& root) { return static_cast<VexaSpider&>(*root.getBodies()[0]); }

TEST(SpiderChart, SpokesPointTo12And4And8OClock) {
    const auto lines = drawingCalls(spiderWith("", axes(3, "min='0' max='5' stroke='#123456'") + serie("")), "line");
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0].points + ' ' + lines[1].points + ' ' + lines[2].points, "0,0 0,-150 0,0 129.9,75 0,0 -129.9,75");
    EXPECT_EQ(lines[2].stroke, "#123456");
    EXPECT_EQ(lines[2].transform, "1 0 0 1 200 150") << "the origin is the centre of the area";
    const auto moved = drawingCalls(spiderWith("x='10' y='20' width='25%' height='180'", axes(1) + serie("")), "line");
    EXPECT_EQ(moved.at(0).points, "0,0 0,-50") << "half of the shorter side";
    EXPECT_EQ(moved.at(0).transform, "1 0 0 1 60 110");
}

TEST(SpiderChart, SeriesAreClosedPolygonsWithACornerOnEachSpoke) {
    const std::string bcd = point("b", "50") + point("c", "50") + point("d", "50");
    const Case<std::string, const char*> cases[] = {
        {point("d", "10") + point("b", "20") + point("a", "50") + point("c", "30"), "0,-150 60,0 0,90 -30,0",
         "the order is that of the axes, not that of the points"},
        {point("a", "50") + bcd, "0,-150 150,0 0,150 -150,0", "all at the tips"},
        {point("a", "50") + point("c", "50"), "0,-150 0,0 0,150 0,0", "a missing point is the centre"},
        {point("a", "10") + point("a", "40") + bcd, "0,-30 150,0 0,150 -150,0", "the first of two for an axis counts"},
        {point("a", "-10") + bcd, "0,30 150,0 0,150 -150,0", "below the minimum: the other side of the centre"},
        {point("A", "50") + bcd, "0,0 150,0 0,150 -150,0", "ids are case-sensitive; a point without its axis is lost"},
    };
    for (const auto& c : cases) {
        const auto paths = drawingCalls(spiderWith("draw-web='false'", axes(4) + serie(c.in, "fill='red'")), "path");
        ASSERT_EQ(paths.size(), 1U) << c.why;
        EXPECT_EQ(paths[0].points, c.out) << c.why;
        EXPECT_EQ(paths[0].verbs + paths[0].fill, "MLLLZ#ff0000") << c.why;
    }
}

TEST(SpiderChart, EqualAxisIdsShareTheirFirstPoint) {
    const std::string points = point("a", "25") + point("a", "40") + point("b", "50");
    const std::string chart = axes(2) + axes(2) + serie(points);
    EXPECT_EQ(drawingCalls(spiderWith("draw-web='false'", chart), "path").at(0).points, "0,-75 150,0 0,75 -150,0");
}

TEST(SpiderChart, ScaleIsSharedByAllSpokes) {
    const struct {
        std::string first, second;
        SpiderScale scale;
        const char* why;
    } cases[] = {
        {"", "", {-25, 90}, "from the data, rounded outward"},
        {"min='-50' max='100'", "min='-60' max='120'", {-60, 120}, "the widest of the bounds"},
        {"min='0' max='100'", "min='0'", {0, 90}, "one axis without maximum: the data decides"},
        {"min='0' max='100'", "max='50'", {-25, 100}, "one axis without minimum"},
        {"min='0' max='10'", "min='0' max='20'", {0, 20}, "explicit bounds cut the data"},
    };
    for (const auto& c : cases) {
        const auto root = load(spiderWith("", "<spider-axis id='a' " + c.first + "/><spider-axis id='b' " + c.second +
                                                  "/>" + serie(point("a", "87") + point("b", "-23"))));
        EXPECT_EQ(spiderOf(*root).getValueRange(), c.scale) << c.why;
        EXPECT_EQ(spiderOf(*root).getPosition(c.scale.max), 1) << c.why;
    }
}

TEST(SpiderChart, WebIsDrawnFromTheInnermostToTheOutermostRing) {
    const std::string chart = axes(4, "min='0' max='100'") + serie("");
    const auto rings = drawingCalls(spiderWith("web-stroke='#cccccc'", chart), "path");
    ASSERT_EQ(rings.size(), 26U + 1U) << "0, 4, …, 96, 100 and the series";
    EXPECT_EQ(rings[1].points, "0,-6 6,0 0,6 -6,0") << "4 of 100 on a radius of 150";
    EXPECT_EQ(rings[25].points, "0,-150 150,0 0,150 -150,0");
    EXPECT_EQ(rings[25].stroke + rings[25].fill, "#cccccc");
    EXPECT_EQ(rings[26].stroke, "") << "the series does not keep the web's stroke";
    const auto root = load(spiderWith("unit-frequency='30'", chart));
    VexaRenderContext context(make<NullSurface>(), 400, 300);
    EXPECT_EQ(shown(spiderOf(*root).getWebValues(context)), "0 30 60 90 100");
}

TEST(SpiderChart, WebStrokeHasAttributesOfItsOwn) {
    const std::string chart = axes(3) + serie("");
    const auto web = drawingCalls(
        spiderWith("web-stroke='#00f' web-stroke-opacity='0.5' web-stroke-width='2pt' web-stroke-linecap='round' "
                   "web-stroke-linejoin='bevel' web-stroke-miterlimit='5' web-stroke-dasharray='3 1' "
                   "web-stroke-dashoffset='2' stroke='red' stroke-width='9' opacity='0.1'",
                   chart),
        "path");
    EXPECT_TRUE(web.at(0).says(
        R"("stroke":{"brush":{"type":"solid","color":"#0000ff","opacity":0.5},"width":2.6666667,"cap":"round",)"
        R"("join":"bevel","miterlimit":5,"dash":{"array":[3,1],"offset":2}})"))
        << web[0].json;
    const auto plain = drawingCalls(spiderWith("opacity='0.1'", chart), "path");
    EXPECT_TRUE(plain.at(0).says(R"("stroke":{"brush":{"type":"solid","color":"#000000","opacity":1},"width":1,)"
                                 R"("cap":"butt","join":"miter","miterlimit":2})"))
        << "by default a thin black line; the overall opacity is the background's";

    const CapturedLog log;
    const std::string defs = "<defs><linear-gradient id='g'><stop/></linear-gradient></defs>";
    const auto gradient = rootWith("theme='none'", "<spider web-stroke='url(#g)'>" + chart + "</spider>" + defs);
    EXPECT_EQ(drawingCalls(gradient, "path").at(0).stroke, "linear");
    EXPECT_EQ(drawingCalls(spiderWith("web-stroke='url(#nowhere)'", chart), "path").at(0).stroke, "");
    EXPECT_EQ(log.codes(), "34001");

    const std::string none = rootWith("", "\n  <spider web-stroke='none'>" + chart + "</spider>");
    EXPECT_EQ(failureOf([&] { draw(none); }), "UnreacheableCodeException 2001 VexaSpider:159 at 2:3");
    EXPECT_NE(messageOf([&] { draw(none); }).find("draw-web"), std::string::npos) << "the message says what would do";
    EXPECT_EQ(drawingCalls(spiderWith("web-stroke='none' draw-web='false'", chart), "path").size(), 1U)
        << "nobody asks for the stroke of a web that is not drawn";
}

TEST(SpiderChart, PaintsBackgroundWebSeriesAndAxesInThisOrder) {
    for (const std::string& content : {axes(3), serie(point("a", "1")), std::string()}) {
        const auto calls = drawingCalls(spiderWith("fill='#eeeeee' x='5' width='50%'", content));
        ASSERT_EQ(calls.size(), 2U) << "without series or axes only the background: " << content;
        EXPECT_EQ(calls[1].box + calls[1].fill, "5,0 200 x 300#eeeeee");
    }
    const std::string axis = "<spider-axis id='a' max='50' min='0' stroke='#0a0a0a' caption='A'/>";
    const std::string chart = axis + serie("", "fill='#010101'") + serie("", "fill='#020202'") + axis;
    std::string order;
    for (const auto& call : drawingCalls(spiderWith("unit-frequency='50' fill='#0f0f0f'", chart)))
        order += call.op + call.fill + ' ';
    EXPECT_EQ(order, "rectangle rectangle#0f0f0f path path path#010101 path#020202 line text#000000 line text#000000 ")
        << "root and spider, two rings, both series, both axes with their captions";
}

TEST(SpiderChart, CaptionsStandOutsideTheTips) {
    const WithFonts fonts;
    const auto texts = [](int count, const std::string& style) {
        return drawingCalls(spiderWith("", axes(count, "min='0' max='50' font-size='10' " + style) + serie("")),
                            "text");
    };
    const std::string style = "caption='ABCDE' caption-color='#00aa00' stroke='red' fill='blue'";
    std::string origins;
    for (const auto& text : texts(4, style)) origins += text.origin + ' ' + text.fill + text.stroke + ' ';
    EXPECT_EQ(origins, "-15,-154 #00aa00 154,5 #00aa00 -15,164 #00aa00 -184,5 #00aa00 ")
        << "30 px of text centred, 4 px above the tip, and so on; not in the axis's own fill";
    EXPECT_EQ(texts(1, style + " caption-offset='10'").at(0).origin, "-15,-160");
    EXPECT_TRUE(texts(1, "caption='  '").empty()) << "a blank caption is no caption";
}

TEST(SpiderChart, SeriesAnswerForThemselvesToo) {
    const auto root = load(spiderWith("", axes(3) + serie(point("a", "50") + point("b", "3") + point("b", "4"))));
    VexaRenderContext context(make<NullSurface>(), 400, 300);
    const VexaSpiderSerie& series = *spiderOf(*root).getSeries()[0];
    EXPECT_EQ(shown(series.getPoints(context)), "0,-150 7.79,4.5 0,0");
    EXPECT_EQ(spiderOf(*root).getSerieCount(), 1);
    EXPECT_EQ(series.getDataPoint("b")->getValue(), 3) << "the first of two";
    EXPECT_EQ(series.getDataRange(), (SpiderExtent{3, 50}));
    EXPECT_EQ(failureOf([&] { make<VexaSpiderSerie>()->getPoints(context); }), kNullPointer) << "no axes to ask";

    const auto nameless = load(spiderWith("", serie(point("a", "3") + "<spider-data-point/>")));
    const VexaSpiderSerie& other = *spiderOf(*nameless).getSeries()[0];
    EXPECT_TRUE(failureOf([&] { other.getDataPoint("c"); }).starts_with("Exception 34000"));
    EXPECT_EQ(other.getDataRange(), (SpiderExtent{0, 3})) << "a point without value counts as 0";
}

}  // namespace
}  // namespace VEXA::Testing
