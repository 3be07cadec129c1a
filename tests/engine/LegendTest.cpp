#include <algorithm>

#include "tests/engine/EngineTestTools.h"
#include "vexa/legend/VexaLegend.h"

namespace VEXA::Testing {
namespace {

/// A legend item; the caption's 6 px a character, a marker of 8 px and a gap of 6 px add up to its width.
std::string item(const std::string& caption, const std::string& attributes = "label='square'") {
    return "<legend-item caption='" + caption + "' " + attributes + "/>";
}

/// A page of 400 px by 300 px with a legend in a font of 10 px: lines are 10 px high, with 2 px below the baseline.
std::string pageWith(const std::string& legend, const std::string& items, const std::string& theme = "none") {
    return rootWith("width='400' height='300' font-size='10' theme='" + theme + "'",
                    "<legend " + legend + ">" + items + "</legend>");
}

/// What the legend of that page draws: its background first, then the items.
std::vector<DrawCall> legendCalls(const std::string& legend, const std::string& items,
                                  const std::string& theme = "none") {
    const WithFonts fonts;
    auto calls = drawingCalls(pageWith(legend, items, theme));
    calls.erase(calls.begin());
    return calls;
}

/// "text@x,y" of every caption.
std::string captionsOf(const std::vector<DrawCall>& calls) {
    std::string captions;
    for (const DrawCall& call : calls)
        if (call.op == "text") captions += (captions.empty() ? "" : " ") + call.text + '@' + call.origin;
    return captions;
}

std::string captionsOf(const std::string& legend, const std::string& items) {
    return captionsOf(legendCalls(legend, items));
}

std::string warningsOf(const std::string& legend, const std::string& items) {
    const CapturedLog log;
    legendCalls(legend, items);
    return log.codes();
}

const std::string kFree = "legend-placement='free' x='20' y='30' height='100' ";
const std::string kThree = item("One") + item("Two") + item("Six");  // 32 px each, 108 px with two gaps

TEST(Legend, ItemsStandInARowAndOneTooManyMakesAList) {
    const auto row = legendCalls(kFree + "width='118' padding='5' stroke='red' stroke-width='4' fill='#eee'", kThree);
    ASSERT_EQ(row.size(), 7U) << "the background, three markers and their captions";
    EXPECT_EQ(row[0].box + row[0].fill + row[0].stroke, "20,30 118 x 100#eeeeee#ff0000");
    EXPECT_EQ(row[0].transform, "1 0 0 1 0 0");
    EXPECT_EQ(captionsOf(row), "One@19,15 Two@57,15 Six@95,15");
    EXPECT_EQ(row[1].box + ' ' + row[3].box, "5,6 8 x 8 43,6 8 x 8") << "markers in the middle of the line";
    for (std::size_t i = 1; i < row.size(); ++i) {
        EXPECT_EQ(row[i].transform, "1 0 0 1 20 30");
        ASSERT_EQ(row[i].clips.size(), 2U) << "the page's clip and its own, which leaves the outline whole";
        EXPECT_EQ(row[i].clips[1], "-2,-2 120,-2 120,102 -2,102 | 1 0 0 1 20 30");
    }
    EXPECT_EQ(captionsOf(kFree + "width='118' padding='5'", kThree + item("Ten")),
              "One@19,15 Two@19,27 Six@19,39 Ten@19,51")
        << "12 px each, a line and the gap below it";
}

TEST(Legend, DocksToAnEdgeOfThePage) {
    const struct {
        const char *legend, *box, *captions, *why;
    } cases[] = {
        {"width='60' padding='4'", "340,130 60 x 40", "One@18,14 Two@18,26 Six@18,38", "at the right by default"},
        {"legend-placement='left' width='60' padding='4' x='7' y='7'", "0,130 60 x 40", "One@18,14 Two@18,26 Six@18,38",
         "a list of 36 px below the padding, in the middle of 300"},
        {"legend-placement='top' height='40' padding='4' y='7'", "144,0 112 x 40", "One@18,14 Two@56,14 Six@94,14",
         "a row of 108 px behind the padding, in the middle of 400"},
        {"legend-placement='bottom' height='10%'", "146,270 108 x 30", "One@14,19 Two@52,19 Six@90,19",
         "without padding the 12 px of the row are centred in the 30"},
        {"legend-placement='bottom' width='60' height='30'", "146,270 108 x 30", "One@14,19 Two@52,19 Six@90,19",
         "the page's width counts, not its own"},
    };
    for (const auto& c : cases) {
        const auto calls = legendCalls(c.legend, kThree);
        EXPECT_EQ(calls.at(0).box, c.box) << c.why;
        EXPECT_EQ(captionsOf(calls), c.captions) << c.why;
        std::string corner = calls[0].origin;
        std::replace(corner.begin(), corner.end(), ',', ' ');
        EXPECT_EQ(calls.at(1).transform, "1 0 0 1 " + corner) << c.why;
    }
    EXPECT_EQ(legendCalls("width='60'", "").at(0).box, "340,150 60 x 0") << "a legend without items";
    EXPECT_EQ(legendCalls("legend-placement='top' height='9'", "").at(0).box, "200,0 0 x 9");
}

TEST(Legend, DocksInTheReferenceSizeInForce) {
    const std::string legend = "<legend width='20'/>";
    const Case<const char*, const char*> cases[] = {
        {"width='50%' height='300'", "180,150 20 x 0", "half of the 400 px of the page, as its background counts"},
        {"width='400' height='300' viewBox='0 0 80 60'", "380,150 20 x 0", "px of the page stay as they are"},
        {"viewBox='0 0 80 60'", "60,30 20 x 0", "percentages are of the view box"},
    };
    for (const auto& c : cases) EXPECT_EQ(drawingCalls(rootWith(c.in, legend)).at(1).box, c.out) << c.why;
}

TEST(Legend, SecondRenderOfATreeDrawsTheSame) {
    const WithFonts fonts;
    for (const char* legend :
         {"width='20%'", "legend-placement='left' width='60' y='9'", "legend-placement='top' height='10%'",
          "legend-placement='bottom' height='40' x='9'", "legend-placement='free' x='5' width='15%'"}) {
        const auto [first, second] = renderedTwice(*load(pageWith(legend, kThree)));
        EXPECT_EQ(first, second) << legend;
        EXPECT_NE(first.find("text Six"), std::string::npos);
    }
    const auto fresh = make<VexaLegend>();
    EXPECT_EQ(attributeOf(*fresh, "width") + attributeOf(*fresh, "y"), "100%0") << "defaults stay as they are";
}

TEST(Legend, ContentIsTurnedInsideItsBox) {
    const struct {
        const char *orientation, *transform, *captions;
    } cases[] = {
        {"rotate0", "1 0 0 1 20 30", "One@14,10 Two@52,10"},
        {"rotate90", "0 1 -1 0 110 30", "One@14,10 Two@14,22"},
        {"rotate180", "-1 0 0 -1 110 90", "One@14,10 Two@52,10"},
        {"rotate270", "0 -1 1 0 20 90", "One@14,10 Two@14,22"},
    };
    for (const auto& c : cases) {
        const std::string box = "legend-placement='free' x='20' y='30' width='90' height='60' orientation='";
        const auto calls = legendCalls(box + c.orientation + "'", item("One") + item("Two"));
        EXPECT_EQ(captionsOf(calls), c.captions) << "70 px have room in 90, not in 60";
        EXPECT_EQ(calls.at(0).box + ' ' + calls[0].transform, "20,30 90 x 60 1 0 0 1 0 0") << "the background stands";
        EXPECT_EQ(calls.at(1).transform, c.transform) << c.orientation;
        EXPECT_EQ(calls.at(1).clips.at(1), "-0.5,-0.5 90.5,-0.5 90.5,60.5 -0.5,60.5 | 1 0 0 1 20 30")
            << "so does its clip";
    }
}

TEST(Legend, DockedAndTurnedItsRowRunsAlongTheEdge) {
    const CapturedLog log;
    const auto calls = legendCalls("width='40' orientation='rotate90'", item("One") + item("Two"));
    EXPECT_EQ(captionsOf(calls), "One@14,10 Two@52,10") << "70 px have room in the page's 300";
    EXPECT_EQ(calls.at(0).box, "360,144 40 x 12") << "as high as the row";
    EXPECT_EQ(calls.at(1).transform, "0 1 -1 0 400 144");
    EXPECT_EQ(calls.at(1).clips.at(1), "-0.5,-0.5 40.5,-0.5 40.5,12.5 -0.5,12.5 | 1 0 0 1 360 144");
    EXPECT_EQ(log.codes(), "34051") << "of the 12 px the second item shows nothing, it begins at 38";
}

TEST(Legend, MarkersStandInTheMiddleOfTheFirstLine) {
    const std::string style = " fill='#010203' stroke='#040506' caption-color='#070809'";
    const struct {
        const char *label, *op, *shape;
    } cases[] = {
        {"square", "rectangle", R"("x":0,"y":1,"width":8,"height":8)"},
        {"dash", "line", R"("x1":0,"y1":5,"x2":8,"y2":5)"},
        {"circle", "ellipse", R"("cx":4,"cy":5,"rx":4,"ry":4)"},
        {"triangle", "path", R"("d":"M4 1L8 7.928203L0 7.928203Z")"},
        {"diamond", "path", R"("d":"M0 5L4 1L8 5L4 9Z")"},
    };
    for (const auto& c : cases) {
        const auto calls = legendCalls(kFree, item("A", "label='" + std::string(c.label) + "'" + style));
        ASSERT_EQ(calls.size(), 3U);
        EXPECT_EQ(calls[1].op, c.op);
        EXPECT_TRUE(calls[1].says(c.shape)) << calls[1].json;
        EXPECT_EQ(calls[1].fill, calls[1].op == "line" ? "" : "#010203") << c.label;
        EXPECT_EQ(calls[1].stroke, "#040506") << c.label;
        EXPECT_EQ(calls[2].fill + calls[2].stroke, "#070809") << "captions have a colour of their own";
        EXPECT_EQ(captionsOf(calls), "A@14,10");
    }
    EXPECT_EQ(legendCalls(kFree, item("A", "label='square' label-width='9.5'")).at(1).origin, "0,0.25");
    const auto large = legendCalls(kFree, item("A", "label='square' label-width='20' label-spacing='3'") + item("B"));
    EXPECT_EQ(large.at(1).origin, "0,0") << "a marker higher than the line stays at the top";
    EXPECT_EQ(captionsOf(large), "A@23,10 B@46,10") << "and the caption is on the first line";
}

TEST(Legend, ItemsWithoutMarkerKeepTheirPlaceInTheLayout) {
    const auto calls = legendCalls(kFree + "width='70'", item("One", "") + item("Two", ""));
    EXPECT_EQ(calls.size(), 3U) << "the background and two captions";
    EXPECT_EQ(captionsOf(calls), "One@6,10 Two@44,10") << "the next one stands as if there were a marker";
    EXPECT_EQ(captionsOf(kFree + "width='56'", item("abcdefgh", "")), "abcdefg@6,10 h@6,22")
        << "and lines are as long as beside one";
}

TEST(Legend, CaptionsAreBrokenIntoTheWidth) {
    const std::string items = item("alpha beta gamma") + item("Two");
    EXPECT_EQ(captionsOf(kFree + "width='60'", items), "alpha @14,10 beta @14,22 gamma@14,34 Two@14,46")
        << "46 px for seven characters; lines and items follow each other at 12 px";
    EXPECT_EQ(legendCalls(kFree + "width='60'", items).at(5).box, "0,37 8 x 8") << "the second item's marker";
    EXPECT_EQ(captionsOf(kFree + "width='70' padding='5'", items), "alpha @19,15 beta @19,27 gamma@19,39 Two@19,51")
        << "between the paddings";
    EXPECT_EQ(captionsOf(kFree + "width='44'", item("abcdefgh")), "abcde@14,10 fgh@14,22") << "long words are split";
    EXPECT_EQ(captionsOf(kFree, item("") + item("Two")), "Two@34,10") << "an empty caption draws nothing";
    EXPECT_EQ(captionsOf(kFree + "width='60'", item("alpha beta", "label='square' label-width='30'") + item("Two")),
              "alph@36,10 a @36,22 beta@36,34 Two@14,46")
        << "a wide marker leaves four characters, to its own caption only";
}

TEST(Legend, TellsOfWhatDoesNotShow) {
    EXPECT_EQ(warningsOf(kFree + "width='118' padding='5'", kThree), "");
    EXPECT_EQ(warningsOf(kFree + "width='14'", kThree), "34050") << "no room beside the markers";
    EXPECT_EQ(warningsOf(kFree + "width='14'", item("") + item(" ")), "") << "nor is any needed";
    EXPECT_EQ(warningsOf("legend-placement='free' width='60' height='24'", kThree), "34051") << "the third is cut off";
    EXPECT_EQ(warningsOf("legend-placement='free' width='60' height='25'", kThree), "") << "a part of it shows";
    const std::string bottom = "legend-placement='bottom' height='";
    EXPECT_EQ(warningsOf(bottom + "500'", kThree), "") << "200 px are above the page, the row in its middle is on it";
    EXPECT_EQ(warningsOf("legend-placement='top' height='900'", kThree), "34051") << "here the row is below the page";
    std::string many;
    for (int i = 0; i < 27; ++i) many += item("Many");
    const CapturedLog log;
    legendCalls("width='60'", many);
    ASSERT_EQ(log.codes(), "34051") << "324 px in the middle of 300: an item's height at each end";
    EXPECT_TRUE(log.records[0].place.isKnown());
    EXPECT_NE(log.records[0].message.find("2 of its items"), String::npos);
}

TEST(Legend, ThePageIsWhatTheViewBoxShows) {
    const WithFonts fonts;
    const Case<const char*, const char*> cases[] = {{"320", "34051", "320 px and 100 are not on the page"},
                                                    {"-80", "", "but -80 and 100 are"}};
    for (const auto& c : cases) {
        const CapturedLog log;
        const std::string legend = "<legend legend-placement='free' width='60' height='20' x='" + std::string(c.in);
        draw(rootWith("width='800' height='600' theme='none' viewBox='100 0 400 300'",
                      legend + "'>" + item("One") + "</legend>"));
        EXPECT_EQ(log.codes(), c.out) << c.why;
    }
}

/// "fill/stroke " of each marker beside a chart with two series.
std::string markersOf(const std::string& theme, const std::string& items) {
    const WithFonts fonts;
    const std::string chart = "<spider><spider-serie/><spider-serie/></spider><legend>";
    const auto calls = drawingCalls(rootWith("theme='" + theme + "'", chart + items + "</legend>"));
    std::string markers;
    for (std::size_t i = 3; i < calls.size(); ++i)  // behind the backgrounds of page, chart and legend
        if (calls[i].op != "text") markers += calls[i].fill + '/' + calls[i].stroke + ' ';
    return markers;
}

TEST(Legend, ThemeColoursTheItemsFromTheLastToTheFirst) {
    // #c0504d lightened and darkened to 0.76667: v + (255 - v) * 0.23333, and v * 0.76667.
    EXPECT_EQ(markersOf("red-flat", item("A") + item("B")), "#933d3b/ #cf7977/ ")
        << "the last item takes the first colour";
    EXPECT_EQ(markersOf("red-white-outline", item("A")), "#cf7977/#ffffff ");
    EXPECT_EQ(markersOf("red-flat", item("A", "label='square' fill='#010203' stroke='#040506'")), "#010203/#040506 ")
        << "the document's own style first";
    EXPECT_EQ(markersOf("red-dark-outline", item("A", "label='dash' stroke='#040506'")), "/#040506 ");
    EXPECT_EQ(markersOf("red-dark-outline", item("A", "label='dash'")), "/#cf7977 ") << "as the lines of charts";
    EXPECT_EQ(markersOf("red-dark-outline", item("A", "label='dash' stroke='none'")), "/#cf7977 ");
    const auto dash = legendCalls(kFree, item("A", "label='dash'"), "gray-flat").at(1);
    EXPECT_TRUE(dash.says(R"("width":4,"cap":"round")")) << dash.json;
    EXPECT_EQ(legendCalls(kFree, item("A", "label='dash'")).at(1).stroke, "") << "without a theme nothing";
}

TEST(Legend, NoStyleIsLeftToWhatComesNext) {
    const auto calls = legendCalls(kFree, item("A", "label='square' fill='red' stroke='blue'") + item("B"));
    ASSERT_EQ(calls.size(), 5U);
    EXPECT_EQ(calls[0].fill + calls[0].stroke, "") << "the layout's style is not the background's";
    EXPECT_EQ(calls[3].fill + calls[3].stroke, "") << "nor an item's the next one's";
    EXPECT_EQ(legendCalls(kFree + "fill='red'", item("A")).at(1).fill, "") << "nor the legend's that of its items";
    const std::string page = "<legend fill='#000004'/><title fill='#000003'/><spider fill='#000001'/>";
    std::string order;
    for (const DrawCall& call : drawingCalls(rootWith("theme='none'", page))) order += call.fill;
    EXPECT_EQ(order, "#000001#000003#000004") << "the legend above everything, wherever it stands";
}

template <class Value>
void setAttribute(XmlObject& object, const char* name, Value value) {
    static_cast<TXmlAttribute<Value>&>(object.getTypeInfo()->findAttribute(name)->of(object)).setValue(value);
}

TEST(Legend, RefusesOrdinalsWithoutMeaningAndADockWithoutAPage) {
    VexaRenderContext context(make<NullSurface>(), 400, 300);
    const auto legend = make<VexaLegend>();
    legend->setPlace({7, 3});
    EXPECT_EQ(failureOf([&] { legend->render(context); }), kNullPointer) << "there is no edge to dock to";
    give(*legend, "legend-placement=free");
    EXPECT_EQ(failureOf([&] { legend->render(context); }), "") << "a free legend needs none";
    for (const int ordinal : {-1, 4}) {
        setAttribute(*legend, "orientation", static_cast<ReferenceOrientation>(ordinal));
        EXPECT_EQ(failureOf([&] { legend->render(context); }), "UnreacheableCodeException 2001 VexaLegend:85 at 7:3");
        EXPECT_TRUE(context.getRenderContext()->state().clip.isEmpty()) << "the surface is as it was";
    }
    const auto alone = make<VexaLegendItem>();
    alone->setPlace({9, 5});
    for (const int ordinal : {-1, 6}) {
        setAttribute(*alone, "label", static_cast<MarkerType>(ordinal));
        EXPECT_EQ(failureOf([&] { alone->render(context); }),
                  "UnreacheableCodeException 2001 VexaLegendItem:72 at 9:5");
    }
}

TEST(LegendItem, AnswersAndDrawsAlone) {
    const WithFonts fonts;
    const auto surface = make<RecordingSurface>();
    VexaRenderContext context(surface, 400, 300);
    const auto alone = make<VexaLegendItem>();
    give(*alone, "caption=alpha beta;label=circle;label-width=6;label-spacing=4;font-size=10;stroke=red");
    EXPECT_EQ(alone->getItemSize(context), (SizeF{70, 10})) << "on one line";
    EXPECT_EQ(alone->getLabelSpacing(), Length(4));
    alone->setPosition({20, 30});
    alone->setMaxWidth(50);
    EXPECT_EQ(alone->layout(context), (RectF{20, 30, 46, 24})) << "two lines in 40 px, one with its space";
    EXPECT_EQ(surface->calls, "");
    for (int times = 0; times < 2; ++times) {
        surface->calls.clear();
        alone->render(context);
        EXPECT_EQ(surface->calls, "ellipse 23 35 3 3; text alpha  6 30 40 0 0; text beta 4 30 52 0 0; ") << times;
    }
    alone->setPosition({0, 0});
    EXPECT_EQ(alone->getItemRect(), (RectF{20, 30, 46, 24})) << "what the layout answered";
    alone->setMaxWidth(10);
    EXPECT_EQ(alone->layout(context), (RectF{0, 0, 0, 6})) << "no room for a caption: the marker alone";
    EXPECT_TRUE(alone->isCaptionCut());
}

TEST(Legend, RowsAreSpacedByNormalWeightAndDockedByTheRealOne) {
    const WithFonts fonts(std::make_shared<CountingFonts>());
    const auto calls =
        drawingCalls(pageWith("legend-placement='top' height='12' font-weight='bold'", item("One") + item("Two")));
    EXPECT_EQ(captionsOf(calls), "One@14,10 Two@52,10") << "a step of 8 + 6 + 18 px and a gap of 6";
    EXPECT_EQ(calls.at(1).box, "156,0 88 x 12") << "the second item ends at 38 + 14 + 36";
}

TEST(Legend, TenThousandItemsTakeLinearWork) {
    const auto service = std::make_shared<CountingFonts>();
    const WithFonts fonts(service);
    std::string items;
    for (int i = 0; i < 10'000; ++i) items += item("ten chars.");
    const auto surface = make<RecordingSurface>();
    const CapturedLog log;
    VexaEngine::render(streamOf(pageWith(kFree + "width='60'", items)), surface);
    EXPECT_TRUE(surface->calls.ends_with("text ten  4 14 239986 0 0; text chars. 6 14 239998 0 0; "))
        << "9,999 items of 24 px, then 10 px and 22 px to the baselines of the last";
    EXPECT_LT(service->measured, 10'000U * 10 * 6);
}

TEST(Legend, HugeSizesEndInAPicture) {
    const CapturedLog log;
    for (const char* value : {"3e38", "-3e38", "1e-45"})
        for (const char* attribute :
             {"label-width", "label-spacing", "font-size", "padding", "width", "x", "stroke-width"})
            for (const char* placement : {"top", "left", "bottom", "right", "free"}) {
                const std::string given = std::string(attribute) + "='" + value + "' ";
                const std::string legend = "legend-placement='" + std::string(placement) + "' ";
                const bool isOfItems = std::string_view(attribute).starts_with("label");
                const std::string entry = item("A b", "label='diamond' " + (isOfItems ? given : ""));
                const std::string drawn = draw(pageWith(legend + (isOfItems ? "" : given), entry + entry));
                EXPECT_TRUE(drawn.ends_with("{\"op\":\"endDocument\"}\n")) << given << placement;
                EXPECT_EQ(drawn.find("nan"), std::string::npos) << given << placement;
            }
}

}  // namespace
}  // namespace VEXA::Testing
