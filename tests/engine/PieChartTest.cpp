#include "tests/engine/EngineTestTools.h"
#include "vexa/pie/VexaPie.h"

namespace VEXA::Testing {
namespace {

/// A document without theme, 200 px by 200 px unless the root says otherwise, in a font of 10 px, with one pie.
std::string pieWith(const std::string& attributes, const std::string& slices,
                    const std::string& root = "width='200' height='200'") {
    return rootWith(root + " theme='none' font-size='10'", "<pie " + attributes + ">" + slices + "</pie>");
}
std::string slice(const std::string& value, const std::string& caption = "", const std::string& attributes = "") {
    return "<slice value='" + value + "' caption='" + caption + "' " + attributes + "/>";
}
const std::string kOverflow = "labels-position='overflow' ";

/// What a document says: "text x,y" of each text.
std::string textsOf(const std::string& xml) {
    std::string texts;
    for (const DrawCall& call : drawingCalls(xml, "text"))
        texts += (texts.empty() ? "" : "; ") + call.text + ' ' + call.origin;
    return texts;
}

TEST(PieChart, FitsIntoTheMiddleOfItsArea) {
    const std::string quarter = slice("1", "", "stroke='red'") + slice("3");
    const struct {
        const char *pie, *transform, *rightmost, *why;
    } cases[] = {
        {"show-captions='false'", "1 0 0 1 150 0", "200,100", "a square of the shorter side"},
        {"", "1 0 0 1 184 34", "132,66", "less 15% of 200 px and 4 px of offset on each side"},
        {"caption-size='10'", "1 0 0 1 164 14", "172,86", "less a length"},
        {"caption-offset='20'", "1 0 0 1 200 50", "100,50", "less a larger offset"},
        {"aspect-3d-view='true' show-captions='false'", "1 0 0 1 150 15", "200,80", "85% high, less 10 px of depth"},
        {"aspect-3d-view='true' aspect-3d-chart-depth='30'", "1 0 0 1 184 49", "132,36", "102 px high, less 30"},
        {"labels-position='overflow'", "1 0 0 1 0 0", "500,100", "all of the area, as an ellipse"},
        {"labels-position='overflow' aspect-3d-view='true'", "1 0 0 1 0 0", "500,95", "less the depth"},
        {"x='10' y='20' width='20%' height='60' caption-size='0' caption-offset='0'", "1 0 0 1 30 20", "60,30",
         "in the middle of 100 px by 60 px"},
    };
    for (const auto& c : cases) {
        const auto paths = drawingCalls(
            pieWith(std::string(c.pie) + " slice-orientation='counter-clockwise'", quarter, "width='500' height='200'"),
            "path");
        ASSERT_FALSE(paths.empty()) << c.why;
        EXPECT_EQ(paths[0].transform, c.transform) << c.why;
        EXPECT_TRUE(paths[0].points.starts_with(std::string(c.rightmost) + ' ')) << paths[0].points << c.why;
    }
    const auto mixed = pieWith("", slice("1", "", "caption-offset='-9'") + slice("1", "", "caption-offset='6'"));
    EXPECT_EQ(drawingCalls(mixed, "path").at(0).transform, "1 0 0 1 36 36")
        << "the largest offset of the slices counts";
    const auto negative = pieWith("caption-offset='-9'", slice("1"));
    EXPECT_EQ(drawingCalls(negative, "path").at(0).transform, "1 0 0 1 21 21") << "a negative one, too";
}

TEST(PieChart, CaptionsThatLeaveTooLittlePieAreLeftOut) {
    const WithFonts fonts;
    const struct {
        const char *root, *pie, *caption, *transform;
        bool isShown;
        const char* why;
    } cases[] = {
        {"width='80' height='80'", "caption-offset='13'", "A", "1 0 0 1 0 0", false, "80 - 2 (12 + 13) is 30"},
        {"width='80' height='80'", "caption-offset='12.9'", "A", "1 0 0 1 24.9 24.9", true, "a little more is enough"},
        {"width='100' height='100'", "caption-offset='15'", "A", "1 0 0 1 30 30", true, "100 - 2 (15 + 15) is 40"},
        {"width='100' height='100'", "caption-offset='15' aspect-3d-view='true'", "A", "1 0 0 1 0 7.5", false,
         "but 85 - 60 is less than 25.5"},
        {"width='100' height='100'", "caption-offset='14.7' aspect-3d-view='true'", "A", "1 0 0 1 29.7 37.2", true,
         "85 - 59.4 is more"},
    };
    for (const auto& c : cases) {
        const CapturedLog log;
        const std::string document = pieWith(c.pie, slice("1", c.caption), c.root);
        EXPECT_EQ(drawingCalls(document, "path").at(0).transform, c.transform) << c.why;
        EXPECT_EQ(!textsOf(document).empty(), c.isShown) << c.why;
        EXPECT_EQ(log.codes(), c.isShown ? "" : "34042 34042") << c.why;
    }
    const CapturedLog log;
    draw(pieWith("", slice("1"), "width='20' height='20'"));
    EXPECT_EQ(log.codes(), "") << "where there are no captions none is missed";
}

TEST(PieChart, PaintsItsPassesInOrder) {
    const WithFonts fonts;
    const std::string slices = slice("1", "A", "fill='#c80000'") + slice("1", "B", "fill='#0000c8'");
    const auto order = [&](const std::string& pie) {
        std::string calls;
        const std::string more = "fill='#eeeeee' start-angle='45' aspect-3d-shading='0.5' caption-color='#111111' ";
        for (const DrawCall& call : drawingCalls(pieWith(more + pie, slices))) calls += call.op + call.fill + ' ';
        return calls;
    };
    const std::string background = "rectangle rectangle#eeeeee ";
    const std::string walls = "path#640000 path#000064 ";
    const std::string bodies = "path#c80000 path#0000c8 ";
    const std::string captions = "text#111111 text#111111 ";
    EXPECT_EQ(order(""), background + bodies + captions) << "a flat pie";
    EXPECT_EQ(order("show-captions='false' show-connectors='true'"), background + bodies);
    EXPECT_EQ(order("show-connectors='true'"), background + bodies + "text#111111 path text#111111 path ");
    EXPECT_EQ(order("aspect-3d-view='true'"), background + bodies + walls + captions);
    EXPECT_EQ(order("pie-shape='doughnut'"), background + bodies + captions) << "a flat doughnut";
    EXPECT_EQ(order("pie-shape='doughnut' aspect-3d-view='true'"), background + walls + bodies + walls + captions);
}

TEST(PieChart, WallsAreAsDeepAsTheChart) {
    // Half of the pie from 45 degrees on clockwise. The lower half of its rim begins at the left: 160 px high, 80 is
    // its level, and 80 cos 45 = 56.57. Inside, the upper half of the rim begins at 135 degrees.
    const std::string slices = slice("1", "", "fill='#c80000' stroke='#c8c8c8'") + slice("1");
    const auto walls =
        drawingCalls(pieWith("aspect-3d-view='true' pie-shape='doughnut' start-angle='45' show-captions='false' "
                             "aspect-3d-shading='0.5'",
                             slices),
                     "path");
    ASSERT_EQ(walls.size(), 6U);
    const auto edges = [](const DrawCall& wall) {
        const std::string& points = wall.points;
        return points.substr(0, points.find(' ')) + " to " + points.substr(points.rfind(' ') + 1) + wall.stroke;
    };
    EXPECT_EQ(edges(walls[0]), "64.64,51.72 to 64.64,61.72#646464") << "the wall behind the hole, 10 px deep";
    EXPECT_EQ(edges(walls[1]), "150,80 to 150,90");
    EXPECT_EQ(edges(walls[4]), "0,80 to 0,90#646464") << "the outer wall";
    EXPECT_NE(walls[4].points.find(" 170.71,136.57 170.71,146.57 "), std::string::npos) << walls[4].points;
    EXPECT_EQ(edges(walls[5]), "170.71,136.57 to 170.71,146.57");
    const auto upper =
        drawingCalls(pieWith("aspect-3d-view='true' start-angle='190'", slice("1") + slice("2")), "path");
    EXPECT_EQ(upper.size(), 3U) << "a slice in the upper half has no outer wall";
}

TEST(PieChart, AHalfSliceHasNoWallOfTheOtherHalf) {
    // Shares that do not add up to a half exactly. 200 px by 190 px and 10 px deep, the level at 95.
    const std::string deep = kOverflow + "aspect-3d-view='true' show-captions='false' ";
    const auto upper = drawingCalls(pieWith(deep, slice("1") + slice("4") + slice("1") + slice("6")), "path");
    ASSERT_EQ(upper.size(), 8U);
    EXPECT_EQ(upper[7].points, "200,95 200,95 200,95 200,95 200,105 200,105 200,105 200,105") << "nothing to see";
    const auto lower = drawingCalls(
        pieWith(deep + "pie-shape='doughnut' start-angle='180'", slice("6") + slice("3") + slice("9")), "path");
    EXPECT_EQ(lower.size(), 8U) << "three slices and their outer walls, two inner ones";
}

TEST(PieChart, SharesAreThoseOfAbsoluteValues) {
    const auto pathsOf = [](const std::string& slices) {
        std::string points;
        for (const DrawCall& call : drawingCalls(pieWith("", slices), "path")) points += call.points + '|';
        return points;
    };
    EXPECT_EQ(pathsOf(slice("-1") + slice("3")), pathsOf(slice("1") + slice("-3")));
    EXPECT_EQ(pathsOf(slice("3e38") + slice("3e38")), pathsOf(slice("1") + slice("1"))) << "their sum is no float";
    EXPECT_EQ(pathsOf(slice("1") + slice("0") + slice("1")), pathsOf(slice("1") + slice("1"))) << "0 leaves no mark";
    const WithFonts fonts;
    EXPECT_EQ(drawingCalls(pieWith("", slice("9", "A") + slice("0", "B") + slice("1", "C")), "text").size(), 3U)
        << "but it keeps its caption";
}

TEST(PieChart, WithoutATotalOrRoomThereIsTheBackgroundOnly) {
    const struct {
        const char *pie, *slices, *codes, *why;
    } cases[] = {
        {"", "", "34040@2:1", "no slices"},
        {"", "<slice caption='A'/><slice value='0'/>", "34040@2:1", "values that add up to nothing"},
        {"labels-position='overflow' width='0'", "<slice value='1'/>", "34041@2:1", "no width"},
        {"aspect-3d-view='true' aspect-3d-chart-depth='170'", "<slice value='1'/>", "34041@2:1", "all of it depth"},
    };
    for (const auto& c : cases) {
        const CapturedLog log;
        const auto calls = drawingCalls(rootWith(
            "width='200' height='200'", std::string("\n<pie fill='#eeeeee' ") + c.pie + ">" + c.slices + "</pie>"));
        ASSERT_EQ(calls.size(), 2U) << c.why;
        EXPECT_EQ(calls[1].op + calls[1].fill, "rectangle#eeeeee") << c.why;
        EXPECT_EQ(log.told(), c.codes) << c.why;
    }
    const CapturedLog log;
    for (const char* const angle : {"-360", "360", "-361", "1e9"}) {
        const auto paths =
            drawingCalls(pieWith(std::string("start-angle='") + angle + "'", slice("1") + slice("1")), "path");
        EXPECT_EQ(paths.size(), 2U) << angle;
    }
    EXPECT_EQ(log.codes(), "34043 34043") << "angles that the slices cannot start at are told";
}

TEST(PieChart, CaptionsAreBrokenAndPlaced) {
    const WithFonts fonts;
    const CapturedLog log;
    // One slice has its middle at 9 o'clock: the rim there is (0, 100), a caption stands 4 px to the left of it.
    const struct {
        const char *pie, *texts, *why;
    } cases[] = {
        {"", "Wind  -34,88; 40.2% -34,100", "30 px of 200 break it after the blank; lines are 12 px apart"},
        {"caption-size='60'", "Wind 40.2% -64,100", "exactly enough"},
        {"caption-wrap='false'", "Wind 40.2% -64,100", "not to be broken"},
        {"caption-placement='center'", "Wind 40.2% -5,105", "within the pie it is not broken"},
        {"caption-placement='inside-end'", "Wind 40.2% 4,110", "to the right of the rim, below its point"},
        {"caption-placement='inside-base'", "Wind 40.2% -64,100", "outside, but not broken"},
        {"caption-size='5'", "", "no room for a character"},
        {"caption-size='0'", "", "no room at all"},
        {"caption-offset='10' show-connectors='true'", "Wind  -47,88; 40.2% -47,100",
         "10 px and 7 px for the connector"},
        {"show-captions='false'", "", "not to be shown"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(textsOf(pieWith(kOverflow + c.pie, slice("1", "Wind 40.2%"))), c.texts) << c.why;
    const auto text =
        drawingCalls(pieWith("caption-color='#00aa00' stroke='red'", slice("1", "A", "fill='blue'")), "text");
    EXPECT_EQ(text.at(0).fill + text.at(0).stroke, "#00aa00") << "not in the slice's own paint";
    EXPECT_EQ(textsOf(pieWith(kOverflow + "caption-placement='center' start-angle='315'",
                              slice("1", "A", "caption-placement='inside-end'") + slice("1", "B"))),
              "A 161.88,167.88; B 43.97,51.97")
        << "a slice has the last word: 96 px at 45 degrees, 75 px opposite";
    EXPECT_EQ(textsOf(pieWith(kOverflow + "caption-size='70%'", slice("1", "A B"), "width='20' height='20'")),
              "A B -22,10")
        << "70% of 30 px at least hold the 18 px of the text";
}

TEST(PieChart, ConnectorsLeadToOutsideCaptions) {
    const WithFonts fonts;
    const CapturedLog log;
    const auto connectors = [](const std::string& pie, const std::string& slices) {
        auto paths = drawingCalls(pieWith(kOverflow + "show-connectors='true' " + pie, slices), "path");
        std::erase_if(paths, [](const DrawCall& call) { return call.verbs.ends_with('Z'); });
        return paths;
    };
    const auto paths = connectors("connectors-color='#888888'", slice("1", "A", "stroke='red' fill='blue'"));
    ASSERT_EQ(paths.size(), 1U);
    EXPECT_EQ(paths[0].verbs + ' ' + paths[0].points, "MLL 0,100 -4,97.5 -9,97.5")
        << "A stands from -17 to -11, 10 px high; the end is 2 px beside it, 3/4 down";
    EXPECT_EQ(paths[0].stroke + paths[0].fill, "#888888");
    EXPECT_TRUE(paths[0].says(R"("width":1,)"));
    EXPECT_EQ(connectors("", slice("1", "A")).at(0).stroke, "#000000");
    EXPECT_TRUE(connectors("caption-placement='center'", slice("1", "A")).empty());
    EXPECT_TRUE(connectors("", slice("1")).empty()) << "nothing to lead to";
    EXPECT_TRUE(connectors("caption-size='0'", slice("1", "A")).empty()) << "nor here";
}

TEST(PieChart, CaptionsThatDoNotFitAreHidden) {
    const WithFonts fonts;
    const std::string wide(30, 'W');
    const struct {
        std::string pie, slices, shown;
        const char *codes, *why;
    } cases[] = {
        {"", slice("3", "A") + slice("3", "B") + slice("94", "C"), "ABC", "", "12.9 px apart"},
        {"", slice("1", "A") + slice("1", "B") + slice("98", "C"), "AC", "",
         "4.4 px apart, 10 px high: the first stays"},
        {"", slice("1", "A") + slice("2", "") + slice("1", "B") + slice("96", "C"), "ABC", "", "13.1 px apart"},
        {"caption-wrap='false'", slice("1", "A") + slice("1", wide), "A", "34044", "beyond the area"},
        {kOverflow + "caption-wrap='false'", slice("1", "A") + slice("1", wide), "A" + wide, "", "as it may be there"},
        {"caption-wrap='false'", slice("1", wide) + slice("1", "A") + slice("98", "C"), "AC", "34044",
         "what is beyond the area hides nothing"},
        {"caption-wrap='false'", slice("1", "A") + slice("1", std::string(30, ' ')), "A", "", "blanks are not missed"},
        {kOverflow + "caption-size='5'", slice("1", "A") + slice("1"), "", "34045", "no line has room for a character"},
        {"caption-size='0'", slice("1", "A") + slice("1", " "), "", "34045", "nor is there a line"},
    };
    for (const auto& c : cases) {
        const CapturedLog log;
        std::string texts;
        for (const DrawCall& call : drawingCalls(pieWith(c.pie, c.slices), "text")) texts += call.text;
        EXPECT_EQ(texts, c.shown) << c.why;
        EXPECT_EQ(log.codes(), c.codes) << c.why;
    }
}

/// Notes what is drawn in which place, and how many clips are in force.
struct PlaceSurface final : RecordingSurface {
    void drawRectangle(float x, float y, float, float, float, float) override { note({x, y}); }
    void drawPath(SmartPtr<Path> path) override { note(path->points()[0]); }
    void drawText(const String&, int, float x, float y, float, int) override { note({x, y}); }
    void note(PointF point) {
        const auto matrix = state().transform.getElements();
        calls += shown(PointF{point.x + matrix[4], point.y + matrix[5]}) + ' ';
        clips = std::max(clips, state().clip->depth);
    }
    std::size_t clips = 0;
};

TEST(PieChart, ATreeMayBeRenderedAgain) {
    const WithFonts fonts;
    const CapturedLog log;
    const auto root =
        load(pieWith("show-connectors='true' x='10' width='200' caption-size='25%'",
                     slice("1", "Wind 40.2%") + slice("1", "B") + slice("98", "Hydro 3%"), "width='220' height='200'"));
    const auto render = [&] {
        const auto surface = make<PlaceSurface>();
        root->render(surface, 800, 600);
        return surface;
    };
    const auto first = render();
    const auto second = render();
    EXPECT_EQ(first->calls, second->calls) << "fitted once, hidden captions stay hidden";
    EXPECT_EQ(log.codes(), "34044") << "Hydro takes 48 + 4 + 7 px where 54 are; told once";
    EXPECT_EQ(first->clips, 2U) << "the root's clip and what was the area";
    EXPECT_EQ(second->clips, 1U);
    const auto& pie = static_cast<VexaPie&>(*root->getBodies()[0]);
    EXPECT_EQ(attributeOf(pie, "caption-size") + ' ' + attributeOf(pie, "width"), "50 92");
    const auto untouched = make<VexaPie>();
    EXPECT_EQ(attributeOf(*untouched, "caption-size") + ' ' + attributeOf(*untouched, "width"), "15% 100%")
        << "the defaults are those of all pies";
}

TEST(PieChart, ThemesColourSlicesFromTheLastToTheFirst) {
    const auto paint = [](const char* theme, const std::string& slices) {
        std::string text;
        for (const DrawCall& call :
             drawingCalls(rootWith(std::string("theme='") + theme + "'", "<pie>" + slices + "</pie>"), "path"))
            text += call.fill + call.stroke + ' ';
        return text;
    };
    const std::string three = slice("1") + slice("1") + slice("1");
    EXPECT_EQ(paint("colored-flat", three), "#4572a7 #c0504d #9bbb59 ");
    EXPECT_EQ(paint("colored-white-outline", slice("1", "", "fill='#010203'") + slice("1")),
              "#010203#ffffff #c0504d#ffffff ");
}

TEST(PieChart, ASliceNeedsItsPie) {
    const auto alone = make<VexaSlice>();
    VexaRenderContext context(make<NullSurface>(), 100, 100);
    EXPECT_EQ(failureOf([&] { alone->render(context); }), kNullPointer);
    EXPECT_EQ(failureOf([&] { alone->layoutCaption(context); }), kNullPointer);
    EXPECT_EQ(failureOf([&] { alone->drawOuterWall(context); }), kNullPointer);
    EXPECT_EQ(failureOf([&] { alone->drawInnerWall(context); }), kNullPointer);
}

}  // namespace
}  // namespace VEXA::Testing
