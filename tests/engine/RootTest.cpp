#include "tests/engine/EngineTestTools.h"
#include "vexa/pie/VexaPie.h"

namespace VEXA::Testing {
namespace {

TEST(Root, ThemeGoesToTheFirstBodyAndTheLegend) {
    const auto fills = [](const std::string& theme, const std::string& bodies) {
        const std::string items = "<legend-item label='square'/><legend-item label='square'/>";
        std::string text;
        for (const auto& call : drawingCalls(rootWith(theme, bodies + "<legend>" + items + "</legend>")))
            text += call.fill.empty() ? "" : call.fill + ' ';
        return text;
    };
    const std::string two = "<pie><slice value='1'/><slice value='1'/></pie>";
    const std::string three = "<pie><slice value='1'/><slice value='1'/><slice value='1'/></pie>";
    EXPECT_EQ(fills("theme='red-flat'", two + three), "#933d3b #cf7977 #933d3b #cf7977 ")
        << "the palette has the colours of the first body: its slices, no others, and the items";
    EXPECT_EQ(fills("theme='red-flat'", ""), "#c0504d #c0504d ") << "the palette is empty: the base colour";
    EXPECT_EQ(fills("theme='none'", two), "") << "no theme";

    const auto root = load(rootWith("theme='red-flat'", two));
    root->render(make<NullSurface>(), 800, 600);
    give(*root, "theme=blue-flat");
    root->render(make<NullSurface>(), 800, 600);
    const auto& slice = static_cast<VexaPie&>(*root->getBodies()[0]).getSlices()[0];
    EXPECT_EQ(describe(slice->getFillBrush(ColorAspect::Normal, 0.5F)), "#933d3b/1") << "once for a tree";
}

TEST(Root, PaintsBackgroundBodiesAndTitleInThisOrder) {
    const std::string page =
        "<pie fill='#000001'/><legend fill='#000006'/><plot-area "
        "fill='#000002'><category-axis/><value-axis/></plot-area>"
        "<title fill='#000005'/><spider fill='#000003'/><pie fill='#000004'/>";
    const CapturedLog log;
    std::string order;
    for (const auto& call : drawingCalls(rootWith("fill='#000000' theme='none'", page)))
        order += call.fill.empty() ? "" : call.fill.substr(6);
    EXPECT_EQ(order, "0123456") << "title and legend above the bodies, wherever they stand";
}

TEST(Root, NeedsNoAttributesAnywhere) {
    const CapturedLog log;
    std::string boxes;
    for (const auto& call : drawingCalls("<root xmlns='http://vexa-charts.org/2008/vx'><pie><slice/></pie><spider>"
                                         "<spider-serie/><spider-axis/></spider><title/></root>",
                                         "rectangle"))
        boxes += call.box + "; ";
    EXPECT_EQ(boxes, "0,0 800 x 600; 194,94 412 x 412; 0,0 800 x 600; 0,0 800 x 60; ")
        << "page; pie, less 15% of 600 px and 4 px on each side; spider; a title of 10%";
}

TEST(Root, PositionMovesAndSizeCutsThePage) {
    const auto call = drawingCalls(rootWith("x='10' y='20' width='50%' height='300'", "")).at(0);
    EXPECT_EQ(call.transform, "1 0 0 1 10 20");
    EXPECT_EQ(call.clips, (std::vector<std::string>{"-1,-1 400,-1 400,300 -1,300 | 1 0 0 1 10 20"}));
    EXPECT_EQ(call.box, "10,20 200 x 300") << "the background counts its percentage from the size of the page";
}

TEST(Root, ViewBoxScalesTheResolvedPage) {
    const struct {
        const char *attributes, *transform, *title, *why;
    } cases[] = {
        {"width='50%' height='50%' viewBox='0 0 100 100'", "4 0 0 3 0 0", "0,0 100 x 10", "400 by 300 px filled"},
        {"width='400' height='300' viewBox='5 7 100 50'", "4 0 0 6 20 42", "0,0 100 x 5", "its origin moves along"},
        {"width='400' height='300' viewBox='0 0 50% 25%'", "2 0 0 4 0 0", "0,0 200 x 7.5", "percent of the page"},
        {"x='10' y='20' width='400' height='300' viewBox='0 0 100 100'", "4 0 0 3 10 20", "0,0 100 x 10",
         "a position is in px of the page"},
        {"width='400' height='300' viewBox='0 0 0 0'", "1 0 0 1 0 0", "0,0 400 x 30", "the default is no view box"},
    };
    for (const auto& c : cases) {
        const auto calls = drawingCalls(rootWith(c.attributes, "<title/>"));
        EXPECT_EQ(calls.at(1).transform, c.transform) << c.why;
        EXPECT_EQ(calls.at(1).box, c.title) << c.why;
    }
    const auto call = drawingCalls(rootWith("width='400' height='300' viewBox='0 0 100 100'", "")).at(0);
    ASSERT_EQ(call.clips.size(), 2U) << "cut at the page";
    EXPECT_EQ(call.clips[1], "-1,-1 401,-1 401,301 -1,301 | 1 0 0 1 0 0") << "in px of the page, before it is scaled";
    const std::string flat = "\n" + rootWith("viewBox='0 0 100 0'", "");
    EXPECT_NE(messageOf([&] { draw(flat); }).find("view box"), std::string::npos);
    EXPECT_TRUE(failureOf([&] { draw(flat); }).ends_with(" at 2:1"));
}

TEST(Root, SurfaceIsLeftAsItWas) {
    const auto surface = make<NullSurface>();
    const DrawingState& state = surface->state();
    surface->addTranslateTransform(3, 4);
    const Matrix before = state.transform;
    for (const char* attributes : {"fill='red' x='5'", "viewBox='0 0 0 100'"}) {
        const std::string failure =
            failureOf([&] { load(rootWith(attributes, "<title value='Title'/>"))->render(surface, 800, 600); });
        EXPECT_EQ(failure.empty(), attributes[0] == 'f');
        EXPECT_EQ(state.transform, before) << attributes;
        EXPECT_FALSE(state.clip || state.fill || state.font) << attributes;
    }
}

TEST(Root, RenderingTwiceGivesTheSameBytes) {
    const std::string document =
        rootWith("fill='#eee'",
                 "<title value='Twice'/><spider><spider-axis id='a' caption='A'/><spider-serie>"
                 "<spider-data-point axis-id='a' value='7'/></spider-serie></spider>");
    EXPECT_EQ(draw(document), draw(document)) << "of a document";
    const auto [first, second] = renderedTwice(*load(document));
    EXPECT_EQ(first, second) << "of a tree";
    EXPECT_NE(first.find("Twice"), std::string::npos);
}

/// The calls of a title in a page of 400 px by 300 px, without the root's background.
std::vector<DrawCall> titleCalls(const std::string& attributes) {
    const WithFonts fonts;
    const std::string page = "width='400' height='300' theme='none'";
    auto calls = drawingCalls(rootWith(page, "<title font-size='10' " + attributes + "/>"));
    calls.erase(calls.begin());
    return calls;
}

TEST(Title, TextIsWrappedAndCutInItsBox) {
    const auto calls = titleCalls("value='alpha abcdefghijkl' width='60' height='24' x='7' y='9'");
    ASSERT_EQ(calls.size(), 4U) << "the box and three lines of ten characters";
    EXPECT_EQ(calls[1].text + '|' + calls[2].text + '|' + calls[3].text, "alpha |abcdefghij|kl") << "long words too";
    EXPECT_EQ(calls[1].origin, "0,10") << "one line height below the top";
    EXPECT_EQ(calls[2].origin, "0,22") << "a descent of 2 px and another line";
    for (const DrawCall& call : calls) {
        EXPECT_EQ(call.transform, "1 0 0 1 7 9");
        ASSERT_EQ(call.clips.size(), 2U) << "the page's clip and its own";
        EXPECT_EQ(call.clips[1], "-1,-1 60,-1 60,24 -1,24 | 1 0 0 1 7 9") << "a pixel more at the top and the left";
    }
    EXPECT_EQ(calls[3].origin, "0,34") << "below the box, which cuts it";
}

TEST(Title, BoxHasTheFillAndTheStrokeAndTheTextAColourOfItsOwn) {
    const auto calls = titleCalls("value='T' width='50%' height='30' fill='#111' stroke='#222' value-color='#333'");
    ASSERT_EQ(calls.size(), 2U);
    EXPECT_EQ(calls[0].box, "0,0 200 x 30") << "percentages are of the page";
    EXPECT_EQ(calls[0].fill + calls[0].stroke, "#111111#222222");
    EXPECT_EQ(calls[1].fill + calls[1].stroke, "#333333");
    const auto plain = titleCalls("value='Title'");
    EXPECT_EQ(plain.at(0).box, "0,0 400 x 30") << "the whole width and a tenth of the height";
    EXPECT_EQ(plain.at(1).fill, "#000000");
    EXPECT_EQ(titleCalls("").size(), 1U) << "only the box without a text";
    EXPECT_EQ(titleCalls("value='Title' width='0'").size(), 1U) << "no room for text";
}

}  // namespace
}  // namespace VEXA::Testing
