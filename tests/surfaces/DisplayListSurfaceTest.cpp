#include "vexa/surfaces/DisplayListSurface.h"

#include <gtest/gtest.h>

#include "tests/TestDirectory.h"
#include "tests/surfaces/SurfaceTesting.h"

namespace VEXA {
namespace {

TEST(DisplayListSurface, TheExampleOfItsPageIsWhatItWrites) {
    const std::string page = Testing::contentOf(VEXA_SOURCE_DIR "/docs/display-list.md");
    EXPECT_EQ(documentOf<DisplayListSurface>([](RenderContext& c) {
                  c.setFill(solid(0xFFFFFF));
                  c.drawRectangle(0, 0, 200, 100, 0, 0);
                  c.addTranslateTransform(20, 0);
                  c.setFill(solid(0));
                  c.setStroke(pen(0x868686));
                  c.drawLine(0, 80, 160, 80);
                  c.setFont(fontOf("sans-serif", 12));
                  c.drawText("Total", 5, 0, 95, 0, 0);
              }),
              between(page, "```json\n", "```"));
}

SmartPtr<Stroke> dashedPen() {
    const SmartPtr<Stroke> stroke = pen(0x010203, 0.5F);
    stroke->setStartLineCap(LineCap::Round);
    stroke->setLineJoin(LineJoin::Bevel);
    stroke->setMiterLimit(4);
    stroke->setDashArray({3, 1.5F});
    stroke->setDashOffset(-2);
    return stroke;
}

SmartPtr<Brush> halfLinear() {
    const SmartPtr<GradientBrush> gradient = redToBlue();
    gradient->setStops({{0, nullptr, 1}, {1, colorOf(0x0000FF), 1}});
    gradient->setOpacity(0.5F);
    return gradient;
}

SmartPtr<Brush> reflectedRadial() {
    const auto gradient =
        make<RadialGradientBrush>(5.0F, 6.0F, 7.0F, 8.0F, GradientUnits::UserSpaceOnUse, GradientSpreadMethod::Reflect);
    gradient->addStop(0.5F, colorOf(0x00FF00), 0.5F);
    gradient->addMatrixTransform(1, 2, 3, 4, 5, 6);
    return gradient;
}

void clipTwice(RenderContext& c) {
    c.setClip(PathCommand::rectangle(0, 0, 9, 9, 0, 0));
    c.addScaleTransform(2, 3);
    c.setClip(PathCommand::polygon({{0, 0}, {1, 0}, {1, 1}}, true));
    c.addTranslateTransform(1, 1);
    c.drawLine(0, 0, 1, 1);
}

void setBoldItalic(RenderContext& c) {
    const SmartPtr<Font> font = fontOf("My \"Font\"", 9.5F);
    font->setFontWeight(DrawingFontWeight::Bold);
    font->setFontStyle(DrawingFontStyle::Italic);
    c.setFont(font);
    c.addTranslateTransform(0, 7);
    c.drawText("a", 1, 0, 0, 0, 0);
}

void dot(RenderContext& c) { c.drawEllipse(0, 0, 1, 1); }

void clipWithin(RenderContext& c) {
    c.setClip(PathCommand::rectangle(0, 0, 9, 9, 0, 0));
    const DrawingState outside = c.state();
    dot(c);
    c.setClip(PathCommand::rectangle(1, 1, 2, 2, 0, 0));
    dot(c);
    c.restoreState(outside);
    dot(c);
}

#define VEXA_DOT R"({"op":"ellipse","cx":0,"cy":0,"rx":1,"ry":1)"
#define VEXA_OUTER R"({"d":"M0 0L9 0L9 9L0 9Z","transform":[1,0,0,1,0,0]})"
#define VEXA_INNER R"({"d":"M1 1L3 1L3 3L1 3Z","transform":[1,0,0,1,0,0]})"
#define VEXA_CLIPPED(clips) VEXA_DOT ",\"clip\":[" clips "]}"

TEST(DisplayListSurface, LinesHaveTheirKeysInOrder) {
    const SmartPtr<Path> curve = make<Path>();
    curve->moveTo({0, 0}).lineTo({10, 0}).curveTo({10, 1}, {9, 2.5F}, {8, 3}).close();
    const DrawingCase cases[] = {
        {"what paints nothing is still told", dot, VEXA_DOT "}"},
        {"a line has no inside: its fill is not told",
         painted(solid(0xFFFFFF), pen(0x868686), [](auto& c) { c.drawLine(0, 0, 10, 0.1F); }),
         R"({"op":"line","x1":0,"y1":0,"x2":10,"y2":0.1,)"
         R"("stroke":{"brush":{"type":"solid","color":"#868686","opacity":1},)"
         R"("width":1,"cap":"butt","join":"miter","miterlimit":2}})"},
        {"a path with curves; fill before stroke, dashes last",
         painted(solid(0xABCDEF, 0.25F), dashedPen(), [curve](auto& c) { c.drawPath(curve); }),
         R"({"op":"path","d":"M0 0L10 0C10 1 9 2.5 8 3Z",)"
         R"("fill":{"type":"solid","color":"#abcdef","opacity":0.25},)"
         R"("stroke":{"brush":{"type":"solid","color":"#010203","opacity":1},)"
         R"("width":0.5,"cap":"round","join":"bevel","miterlimit":4,"dash":{"array":[3,1.5],"offset":-2}}})"},
        {"a linear gradient; a stop without a colour keeps its place", painted(halfLinear(), nullptr, dot),
         VEXA_DOT R"(,"fill":{"type":"linear","x1":0,"y1":0,"x2":1,"y2":0,)"
                  R"("units":"objectBoundingBox","spread":"pad","matrix":[1,0,0,1,0,0],"opacity":0.5,)"
                  R"("stops":[{"offset":0,"opacity":1},{"offset":1,"color":"#0000ff","opacity":1}]}})"},
        {"a radial gradient, as it was given", painted(reflectedRadial(), nullptr, dot),
         VEXA_DOT R"(,"fill":{"type":"radial","cx":5,"cy":6,"rx":7,"ry":8,)"
                  R"("units":"userSpaceOnUse","spread":"reflect","matrix":[1,2,3,4,5,6],"opacity":1,)"
                  R"("stops":[{"offset":0.5,"color":"#00ff00","opacity":0.5}]}})"},
        {"brushes without a colour, and strokes with one, are left out",
         painted(make<SolidColorBrush>(nullptr), make<Stroke>(make<SolidColorBrush>(nullptr), 1.0F), dot),
         VEXA_DOT "}"},
        {"clips from the outermost, each with its own transform, behind the whole transform in force", clipTwice,
         R"({"op":"line","x1":0,"y1":0,"x2":1,"y2":1,"transform":[2,0,0,3,2,3],)"
         R"("clip":[)" VEXA_OUTER R"(,)"
         R"({"d":"M0 0L1 0L1 1Z","transform":[2,0,0,3,0,0]}]})"},
        {"a clip in force again is told again", clipWithin,
         VEXA_CLIPPED(VEXA_OUTER) "\n" VEXA_CLIPPED(VEXA_OUTER "," VEXA_INNER) "\n" VEXA_CLIPPED(VEXA_OUTER)},
        {"numbers are the shortest that read back, without a negative zero; what is not finite is 0",
         [](auto& c) { c.drawRectangle(0.1F, -0.0F, 16777216, 1e20F, kNaN, -kInfinity); },
         R"({"op":"rectangle","x":0.1,"y":0,"width":16777216,"height":1e+20,"rx":0,"ry":0})"},
        {"weight, style, a family that must be escaped, the place after the font", setBoldItalic,
         R"({"op":"text","text":"a","x":0,"y":0,)"
         R"("font":{"family":"My \"Font\"","size":9.5,"weight":"bold","style":"italic"},)"
         R"("transform":[1,0,0,1,0,7]})"},
        {"only the first characters, counted as code points, with spacing where there is some",
         [](auto& c) { c.drawText("\U0001f44d\u00e9xyz", 2, 0, 0, 1.5F, 0); },
         "{\"op\":\"text\",\"text\":\"\U0001f44d\u00e9\",\"x\":0,\"y\":0,\"spacing\":1.5}"},
        {"fewer characters than none; no stroke for texts",
         painted(nullptr, pen(0), [](auto& c) { c.drawText("abc", -1, 0, 0, 0, 0); }),
         R"({"op":"text","text":"","x":0,"y":0})"},
        {"quotation mark, backslash and control characters are escaped, a slash is not",
         [](auto& c) { c.drawText("\"\\/\n\t\r\x01\x1f\x7f\u0085", 99, 0, 0, 0, 0); },
         R"({"op":"text","text":"\"\\/\n\t\r\u0001\u001f\u007f\u0085","x":0,"y":0})"},
    };
    for (const DrawingCase& c : cases) EXPECT_EQ(displayList(c.draw), std::string(c.expected) + "\n") << c.why;
}

TEST(DisplayListSurface, LinesReachTheStreamWithTheEndOfAPageOrWhenAsked) {
    const SmartPtr<IO::MemoryStream> stream = make<IO::MemoryStream>();
    const SmartPtr<DisplayListSurface> surface = make<DisplayListSurface>(stream);
    surface->drawEllipse(1, 2, 3, 4);
    surface->flush();
    EXPECT_EQ(stream->takeBytes(), "{\"op\":\"ellipse\",\"cx\":1,\"cy\":2,\"rx\":3,\"ry\":4}\n");
    surface->endPage();
    EXPECT_EQ(stream->takeBytes(), "{\"op\":\"endPage\"}\n");
    for (int i = 0; i < 10'000; ++i) surface->drawEllipse(1, 2, 3, 4);
    EXPECT_GT(stream->bytes().size(), 100'000U) << "a long list is not kept in memory";
}

}  // namespace
}  // namespace VEXA
