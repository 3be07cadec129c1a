#include "vexa/surfaces/DisplayListSurface.h"

#include <gtest/gtest.h>

#include <fstream>
#include <limits>
#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/surfaces/SurfaceTesting.h"

namespace VEXA {
namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

TEST(DisplayListSurface, PagesAndDocumentAreLinesOfTheirOwn) {
    EXPECT_EQ(documentOf<DisplayListSurface>([](RenderContext&) {}),
              "{\"op\":\"beginDocument\"}\n"
              "{\"op\":\"beginPage\",\"width\":200,\"height\":100}\n"
              "{\"op\":\"endPage\"}\n"
              "{\"op\":\"endDocument\"}\n");
}

TEST(DisplayListSurface, TheExampleOfItsPageIsWhatItWrites) {
    std::ifstream file(VEXA_SOURCE_DIR "/docs/display-list.md");
    std::ostringstream page;
    page << file.rdbuf();
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
              between(page.str(), "```json\n", "```"));
}

struct LineCase {
    const char* why;
    Drawing draw;
    const char* line;
};

class Lines : public testing::TestWithParam<LineCase> {};

TEST_P(Lines, HaveTheirKeysInOrder) {
    EXPECT_EQ(displayList(GetParam().draw), std::string(GetParam().line) + "\n") << GetParam().why;
}

INSTANTIATE_TEST_SUITE_P(
    Operations, Lines,
    testing::Values(
        LineCase{"what paints nothing is still told", [](RenderContext& c) { c.drawEllipse(5, 6, 7, 8); },
                 R"({"op":"ellipse","cx":5,"cy":6,"rx":7,"ry":8})"},
        LineCase{"a fill alone",
                 [](RenderContext& c) {
                     c.setFill(solid(0xFFFFFF));
                     c.drawRectangle(0, 0, 800, 600, 0, 0);
                 },
                 R"({"op":"rectangle","x":0,"y":0,"width":800,"height":600,"rx":0,"ry":0,)"
                 R"("fill":{"type":"solid","color":"#ffffff","opacity":1}})"},
        LineCase{"a line has no inside: its fill is not told",
                 [](RenderContext& c) {
                     c.setFill(solid(0xFFFFFF));
                     c.setStroke(pen(0x868686));
                     c.addTranslateTransform(40, 20);
                     c.drawLine(0, 0, 10, 0.1F);
                 },
                 R"({"op":"line","x1":0,"y1":0,"x2":10,"y2":0.1,"transform":[1,0,0,1,40,20],)"
                 R"("stroke":{"brush":{"type":"solid","color":"#868686","opacity":1},)"
                 R"("width":1,"cap":"butt","join":"miter","miterlimit":2}})"},
        LineCase{"a path with curves; fill before stroke, dashes last",
                 [](RenderContext& c) {
                     const SmartPtr<Stroke> stroke = pen(0x010203, 0.5F);
                     stroke->setStartLineCap(LineCap::Round);
                     stroke->setLineJoin(LineJoin::Bevel);
                     stroke->setMiterLimit(4);
                     stroke->setDashArray({3, 1.5F});
                     stroke->setDashOffset(-2);
                     c.setFill(solid(0xABCDEF, 0.25F));
                     c.setStroke(stroke);
                     const SmartPtr<Path> path = make<Path>();
                     path->moveTo({0, 0}).lineTo({10, 0}).curveTo({10, 1}, {9, 2.5F}, {8, 3}).close();
                     c.drawPath(path);
                 },
                 R"({"op":"path","d":"M0 0L10 0C10 1 9 2.5 8 3Z",)"
                 R"("fill":{"type":"solid","color":"#abcdef","opacity":0.25},)"
                 R"("stroke":{"brush":{"type":"solid","color":"#010203","opacity":1},)"
                 R"("width":0.5,"cap":"round","join":"bevel","miterlimit":4,"dash":{"array":[3,1.5],"offset":-2}}})"},
        LineCase{
            "a linear gradient",
            [](RenderContext& c) {
                const SmartPtr<GradientBrush> gradient = redToBlue();
                gradient->setOpacity(0.5F);
                c.setFill(gradient);
                c.drawPath(PathCommand::polygon({{0, 0}, {1, 1}}, true));
            },
            R"({"op":"path","d":"M0 0L1 1Z","fill":{"type":"linear","x1":0,"y1":0,"x2":1,"y2":0,)"
            R"("units":"objectBoundingBox","spread":"pad","matrix":[1,0,0,1,0,0],"opacity":0.5,)"
            R"("stops":[{"offset":0,"color":"#ff0000","opacity":1},{"offset":1,"color":"#0000ff","opacity":1}]}})"},
        LineCase{"a radial gradient, as it was given",
                 [](RenderContext& c) {
                     const auto gradient = make<RadialGradientBrush>(
                         5.0F, 6.0F, 7.0F, 8.0F, GradientUnits::UserSpaceOnUse, GradientSpreadMethod::Reflect);
                     gradient->addStop(0.5F, colorOf(0x00FF00), 0.5F);
                     gradient->addMatrixTransform(1, 2, 3, 4, 5, 6);
                     c.setFill(gradient);
                     c.drawEllipse(0, 0, 1, 1);
                 },
                 R"({"op":"ellipse","cx":0,"cy":0,"rx":1,"ry":1,"fill":{"type":"radial","cx":5,"cy":6,"rx":7,"ry":8,)"
                 R"("units":"userSpaceOnUse","spread":"reflect","matrix":[1,2,3,4,5,6],"opacity":1,)"
                 R"("stops":[{"offset":0.5,"color":"#00ff00","opacity":0.5}]}})"},
        LineCase{"a stop without a colour keeps its place",
                 [](RenderContext& c) {
                     const SmartPtr<GradientBrush> gradient = redToBlue();
                     gradient->setStops({{0, nullptr, 1}, {1, colorOf(0x0000FF), 1}});
                     c.setFill(gradient);
                     c.drawEllipse(0, 0, 1, 1);
                 },
                 R"({"op":"ellipse","cx":0,"cy":0,"rx":1,"ry":1,"fill":{"type":"linear","x1":0,"y1":0,"x2":1,"y2":0,)"
                 R"("units":"objectBoundingBox","spread":"pad","matrix":[1,0,0,1,0,0],"opacity":1,)"
                 R"("stops":[{"offset":0,"opacity":1},{"offset":1,"color":"#0000ff","opacity":1}]}})"},
        LineCase{"brushes without a colour, and strokes with one, are left out",
                 [](RenderContext& c) {
                     c.setFill(make<SolidColorBrush>(nullptr));
                     c.setStroke(make<Stroke>(make<SolidColorBrush>(nullptr), 1.0F));
                     c.drawEllipse(0, 0, 1, 1);
                 },
                 R"({"op":"ellipse","cx":0,"cy":0,"rx":1,"ry":1})"},
        LineCase{"clips from the outermost, each with its own transform, behind the whole transform in force",
                 [](RenderContext& c) {
                     c.setClip(PathCommand::rectangle(0, 0, 9, 9, 0, 0));
                     c.addScaleTransform(2, 3);
                     c.setClip(PathCommand::polygon({{0, 0}, {1, 0}, {1, 1}}, true));
                     c.addTranslateTransform(1, 1);
                     c.drawLine(0, 0, 1, 1);
                 },
                 R"({"op":"line","x1":0,"y1":0,"x2":1,"y2":1,"transform":[2,0,0,3,2,3],)"
                 R"("clip":[{"d":"M0 0L9 0L9 9L0 9Z","transform":[1,0,0,1,0,0]},)"
                 R"({"d":"M0 0L1 0L1 1Z","transform":[2,0,0,3,0,0]}]})"},
        LineCase{"numbers are the shortest that read back, without a negative zero; what is not finite is 0",
                 [](RenderContext& c) { c.drawRectangle(0.1F, -0.0F, 16777216, 1e20F, kNaN, -kInfinity); },
                 R"({"op":"rectangle","x":0.1,"y":0,"width":16777216,"height":1e+20,"rx":0,"ry":0})"}));

INSTANTIATE_TEST_SUITE_P(
    Texts, Lines,
    testing::Values(LineCase{"the font, then the fill; a stroke is not used for texts",
                             [](RenderContext& c) {
                                 c.setFont(fontOf("sans-serif", 12));
                                 c.setFill(solid(0));
                                 c.setStroke(pen(0));
                                 c.drawText("Total", 5, 1, 2, 0, 0);
                             },
                             R"({"op":"text","text":"Total","x":1,"y":2,)"
                             R"("font":{"family":"sans-serif","size":12,"weight":"normal","style":"normal"},)"
                             R"("fill":{"type":"solid","color":"#000000","opacity":1}})"},
                    LineCase{"weight, style, a family that must be escaped, the place after the font",
                             [](RenderContext& c) {
                                 const SmartPtr<Font> font = fontOf("My \"Font\"", 9.5F);
                                 font->setFontWeight(DrawingFontWeight::Bold);
                                 font->setFontStyle(DrawingFontStyle::Italic);
                                 c.setFont(font);
                                 c.addTranslateTransform(0, 7);
                                 c.drawText("a", 1, 0, 0, 0, 0);
                             },
                             R"({"op":"text","text":"a","x":0,"y":0,)"
                             R"("font":{"family":"My \"Font\"","size":9.5,"weight":"bold","style":"italic"},)"
                             R"("transform":[1,0,0,1,0,7]})"},
                    LineCase{"only the first characters, counted as code points",
                             [](RenderContext& c) { c.drawText("\U0001f44d\u00e9xyz", 2, 0, 0, 0, 0); },
                             "{\"op\":\"text\",\"text\":\"\U0001f44d\u00e9\",\"x\":0,\"y\":0}"},
                    LineCase{"fewer characters than none", [](RenderContext& c) { c.drawText("abc", -1, 0, 0, 0, 0); },
                             R"({"op":"text","text":"","x":0,"y":0})"},
                    LineCase{"spacing where there is some",
                             [](RenderContext& c) { c.drawText("ab", 9, 0, 0, 1.5F, 0); },
                             R"({"op":"text","text":"ab","x":0,"y":0,"spacing":1.5})"},
                    LineCase{"quotation mark, backslash and control characters are escaped, a slash is not",
                             [](RenderContext& c) { c.drawText("\"\\/\n\t\r\x01\x1f\x7f\u0085", 99, 0, 0, 0, 0); },
                             R"({"op":"text","text":"\"\\/\n\t\r\u0001\u001f\u007f\u0085","x":0,"y":0})"}));

/// Draws what this surface says, each operation in every state.
void drawEverything(RenderContext& c, float number) {
    const SmartPtr<GradientBrush> gradient = redToBlue();
    gradient->addMatrixTransform(number, 0, 0, 1, number, 0);
    gradient->setOpacity(number);
    gradient->addStop(number, colorOf(0), number);
    const SmartPtr<Stroke> stroke = make<Stroke>(
        make<RadialGradientBrush>(number, number, number, number, GradientUnits(), GradientSpreadMethod()), 2.0F);
    stroke->setDashArray({1, 2});
    stroke->setDashOffset(number);
    stroke->setMiterLimit(number);
    c.setFill(gradient);
    c.setStroke(stroke);
    c.setFont(fontOf("serif", number));
    c.setClip(PathCommand::ellipse(number, 0, number, 1));
    c.addTranslateTransform(number, 0);
    c.drawLine(number, 0, 0, number);
    c.drawRectangle(number, 0, number, 1, number, 0);
    c.drawEllipse(0, number, 1, number);
    c.drawPolygon({{0, number}, {number, 0}, {1, 1}}, true);
    c.drawText("text", 4, number, number, number, 0);
}

TEST(DisplayListSurface, EveryLineIsJsonWhateverTheNumbers) {
    for (const float number : {kNaN, kInfinity, -kInfinity, std::numeric_limits<float>::max(),
                               std::numeric_limits<float>::denorm_min(), -0.0F, 1.0F / 3}) {
        std::istringstream lines(
            documentOf<DisplayListSurface>([number](RenderContext& c) { drawEverything(c, number); }));
        int count = 0;
        for (std::string line; std::getline(lines, line); ++count) {
            ASSERT_TRUE(nlohmann::json::accept(line)) << line;
        }
        EXPECT_EQ(count, 4 + 5);
    }
}

TEST(DisplayListSurface, NumbersReadBackAsTheSameFloat) {
    for (const float number : {0.1F, 1.0F / 3, 123456.789F, 1e-7F, 3.4e38F}) {
        const auto line =
            nlohmann::json::parse(displayList([number](RenderContext& c) { c.drawEllipse(number, 0, 0, 0); }));
        EXPECT_EQ(line["cx"].get<float>(), number);
    }
}

TEST(DisplayListSurface, TextsReadBackAsTheSameCharacters) {
    const std::string text = "\"}\\u0000,{\"\x01\x7f \u2028\u2029 \u00e9\u4e2d\U0001f44d\ufffe";
    const auto line = nlohmann::json::parse(displayList([&](RenderContext& c) { c.drawText(text, 99, 0, 0, 0, 0); }));
    EXPECT_EQ(line["text"].get<std::string>(), text);
}

TEST(DisplayListSurface, AClipInForceAgainIsToldAgain) {
    const std::string lines = displayList([](RenderContext& c) {
        const SmartPtr<RenderContext> surface(&c);
        c.setClip(PathCommand::rectangle(0, 0, 9, 9, 0, 0));
        c.drawLine(0, 0, 1, 1);
        {
            const RenderContextScope scope(surface);
            c.setClip(PathCommand::rectangle(1, 1, 2, 2, 0, 0));
            c.drawLine(0, 0, 1, 1);
        }
        c.drawLine(0, 0, 1, 1);
        c.drawLine(0, 0, 1, 1);
    });
    std::istringstream stream(lines);
    Vector<std::size_t> depths;
    for (std::string line; std::getline(stream, line);) depths.push_back(nlohmann::json::parse(line)["clip"].size());
    EXPECT_EQ(depths, (Vector<std::size_t>{1, 2, 1, 1}));
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
