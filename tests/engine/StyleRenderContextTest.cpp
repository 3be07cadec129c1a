#include <limits>

#include "tests/engine/StyleTestTools.h"
#include "vexa/support/drawing/FontService.h"

namespace VEXA {
namespace {

using namespace Testing;

/// Remembers each drawing call as text.
class RecordingSurface final : public RenderContext {
public:
    void beginDocument() override {}
    void endDocument() override {}
    void beginPage(const SizeF&) override {}
    void endPage() override {}
    void drawLine(float x1, float y1, float x2, float y2) override { note("line", {x1, y1, x2, y2}); }
    void drawRectangle(float x, float y, float width, float height, float rx, float ry) override {
        note("rectangle", {x, y, width, height, rx, ry});
    }
    void drawEllipse(float cx, float cy, float rx, float ry) override { note("ellipse", {cx, cy, rx, ry}); }
    void drawPath(SmartPtr<Path> path) override { note("path", {static_cast<float>(path->points().size())}); }
    void drawText(const String& text, int length, float x, float y, float spacing, int flags) override {
        note("text " + text.toUtf8(), {static_cast<float>(length), x, y, spacing, static_cast<float>(flags)});
    }

    std::vector<std::string> calls;

private:
    void note(std::string call, std::initializer_list<float> numbers) {
        for (const float value : numbers) call += " " + number(value);
        calls.push_back(std::move(call));
    }
};

constexpr LengthOrPercent px(float value) { return LengthOrPercent(Length(value)); }
constexpr LengthOrPercent percent(float value) { return LengthOrPercent::percent(value / 100); }

TEST(StyleRenderContext, PercentagesAreOfTheReferenceSize) {
    const VexaRenderContext context(make<RecordingSurface>(), 300, 400);
    EXPECT_EQ(context.getSize(), (SizeF{300, 400}));
    EXPECT_FLOAT_EQ(context.pxWidth(percent(10)), 30);
    EXPECT_FLOAT_EQ(context.pxHeight(percent(10)), 40);
    EXPECT_NEAR(context.pxDiagonal(percent(10)), 35.3553F, 1e-3F) << "a tenth of 500 / sqrt(2)";
    EXPECT_EQ(context.pxDiagonal(LengthOrPercent(Length(1, LengthUnit::In))), 96) << "a length needs no reference";
}

TEST(StyleRenderContext, LengthsReachTheSurfaceInPx) {
    const auto surface = make<RecordingSurface>();
    VexaRenderContext context(surface, 200, 100);
    const Length inch(1, LengthUnit::In);
    context.drawLine(inch, Length(1), Length(2), Length(3));
    context.drawRectangle(Length(1), Length(2), percent(50), percent(50), percent(1), percent(1));
    context.drawRectangle(inch, inch, px(3), px(4), px(5), px(6));
    context.drawEllipse(Length(1), Length(2), percent(10));
    context.drawEllipse(Length(1), Length(2), px(7));
    context.drawPolygon({{0, 0}, {1, 0}, {1, 1}}, true);
    context.drawPath(PathCommand::rectangle(0, 0, 1, 1, 0, 0));
    context.drawText("Höhe", Length(3), inch);
    context.drawText("Total");
    context.drawText("");
    context.drawText("", Length(1), Length(1));
    EXPECT_EQ(surface->calls,
              (std::vector<std::string>{"line 96 1 2 3", "rectangle 1 2 100 50 2 1", "rectangle 96 96 3 4 5 6",
                                        "ellipse 1 2 20 10", "ellipse 1 2 7 7", "path 3", "path 4",
                                        "text Höhe 4 3 96 0 0", "text Total 5 0 0 0 0"}))
        << "an empty text draws nothing";
}

TEST(StyleRenderContext, SurfaceReturnsToItsStateWhenTheContextEnds) {
    const auto surface = make<RecordingSurface>();
    const auto before = make<SolidColorBrush>(rgb(0x123456));
    surface->setFill(before);
    {
        VexaRenderContext context(surface, 200, 100);
        context.translate(Length(10), Length(1, LengthUnit::In));
        context.rotate(90);
        context.setFill(make<SolidColorBrush>(rgb(0)));
        context.setStroke(make<Stroke>(before, 1.0F));
        context.setFont(make<Font>());
        context.setClip(PathCommand::rectangle(0, 0, 1, 1, 0, 0));
        EXPECT_EQ(surface->state().transform.apply({1, 0}), (PointF{10, 97})) << "moved, then turned clockwise";
        EXPECT_FALSE(surface->state().stroke.isEmpty());
        EXPECT_FALSE(surface->state().clip.isEmpty());
    }
    EXPECT_EQ(surface->state().fill.get(), before.get());
    EXPECT_TRUE(surface->state().stroke.isEmpty());
    EXPECT_TRUE(surface->state().font.isEmpty());
    EXPECT_TRUE(surface->state().clip.isEmpty());
    EXPECT_TRUE(surface->state().transform.isIdentity());
}

TEST(StyleRenderContext, TextIsMeasuredByTheFontService) {
    const FixedWidthFonts fonts;
    VexaRenderContext context(make<RecordingSurface>(), 200, 100);
    auto font = make<Font>();
    font->setFontSize(20);
    EXPECT_EQ(context.measureText("abc", font), (SizeF{36, 20})) << "3 x 0.6 em; ascent and descent make 1 em";
    EXPECT_EQ(context.measureText("", font), (SizeF{0, 20})) << "the height is that of a line";
    font->setFontSize(10);
    context.setFont(font);
    EXPECT_EQ(context.measureText("abc"), (SizeF{18, 10}));
    EXPECT_EQ(context.getTextDescent(), 2.0F);
}

TEST(StyleRenderContext, MeasuringWithoutFontOrSurfaceFails) {
    CapturedLog log;
    const VexaRenderContext context(make<RecordingSurface>(), 200, 100);
    EXPECT_EQ(failureOf([&] { context.measureText("a", nullptr); }),
              "UnreacheableCodeException 2001 VexaRenderContext:172 at 0:0");
    EXPECT_EQ(failureOf([&] { context.measureText("a"); }),
              "UnreacheableCodeException 2001 VexaRenderContext:172 at 0:0");
    EXPECT_EQ(failureOf([&] { context.getTextDescent(); }),
              "UnreacheableCodeException 2001 VexaRenderContext:202 at 0:0");

    VexaRenderContext without(nullptr, 200, 100);
    EXPECT_EQ(failureOf([&] { without.setFill(nullptr); }), "NullPointerException 2002 SmartPtr:118 at 0:0");
    EXPECT_EQ(failureOf([&] { without.drawText("a"); }), "NullPointerException 2002 SmartPtr:118 at 0:0");
    EXPECT_EQ(failureOf([&] { without.measureText("a"); }), "NullPointerException 2002 SmartPtr:118 at 0:0");
}

TEST(StyleRenderContext, ServiceWithoutAProgramFails) {
    struct Nothing final : FontService {
        SmartPtr<FontProgram> getFont(const Font&) override { return nullptr; }
    };
    CapturedLog log;
    auto previous = FontManager::setService(std::make_shared<Nothing>());
    const VexaRenderContext context(make<RecordingSurface>(), 200, 100);
    EXPECT_EQ(failureOf([&] { context.measureText("a", make<Font>()); }),
              "NullPointerException 2002 SmartPtr:118 at 0:0");
    FontManager::setService(std::move(previous));
}

ViewBox viewBox(LengthOrPercent x, LengthOrPercent y, LengthOrPercent width, LengthOrPercent height) {
    return {SLengthOrPercent(x), SLengthOrPercent(y), SLengthOrPercent(width), SLengthOrPercent(height)};
}

TEST(StyleRenderContext, ViewBoxScalesThePageAndBecomesTheReference) {
    const auto surface = make<RecordingSurface>();
    VexaRenderContext context(surface, 500, 300);
    context.applyViewBox(percent(100), px(300), viewBox(px(10), px(20), px(50), percent(20)));
    EXPECT_EQ(context.getSize(), (SizeF{50, 60})) << "a fifth of 300";
    EXPECT_EQ(context.pxWidth(percent(100)), 50);
    // 500 / 50 and 300 / 60; the origin moves by the scaled corner of the view box.
    EXPECT_EQ(surface->state().transform, Matrix(10, 0, 0, 5, 100, 100));
    const SmartPtr<ClipNode> clip = surface->state().clip;
    EXPECT_TRUE(clip->transform.isIdentity()) << "the clip is in px of the page";
    EXPECT_EQ(clip->path->points(), PathCommand::rectangle(-1, -1, 502, 302, 0, 0)->points());
}

TEST(StyleRenderContext, ViewBoxWithoutExtentIsRefused) {
    CapturedLog log;
    const float infinity = std::numeric_limits<float>::infinity();
    for (const float extent : {0.0F, -5.0F, infinity, std::numeric_limits<float>::quiet_NaN(), 1e-45F}) {
        for (const bool isWidth : {true, false}) {
            const auto surface = make<RecordingSurface>();
            VexaRenderContext context(surface, 500, 300);
            const ViewBox box = viewBox(px(0), px(0), px(isWidth ? extent : 5), px(isWidth ? 5 : extent));
            const std::string failure = failureOf([&] { context.applyViewBox(px(500), px(300), box, {3, 9}); });
            EXPECT_EQ(failure.rfind("Exception 34011 VexaRenderContext:", 0), 0U) << extent;
            EXPECT_NE(failure.find("at 3:9"), std::string::npos) << extent;
            EXPECT_TRUE(surface->state().transform.isIdentity()) << "nothing is half applied";
        }
    }
}

TEST(StyleArea, ResolvesItsRectangleAndTakesANewOne) {
    VexaRenderContext context(make<RecordingSurface>(), 200, 100);
    auto area = make<TestArea>();
    EXPECT_EQ(area->getAreaRect(context), (RectF{0, 0, 200, 100})) << "all of the reference by default";
    area->x_.setValue(Length(3, LengthUnit::Pt));
    area->width_.setValue(percent(25));
    area->height_.setValue(px(30));
    EXPECT_EQ(area->getAreaRect(context), (RectF{4, 0, 50, 30}));
    EXPECT_EQ(area->getAreaSize(context), (SizeF{50, 30}));

    area->setAreaRect({1, 2, 3, 4});
    EXPECT_EQ(area->getAreaRect(context), (RectF{1, 2, 3, 4}));
    EXPECT_EQ(make<TestArea>()->getAreaRect(context), (RectF{0, 0, 200, 100})) << "the shared defaults are untouched";
}

TEST(StyleArea, DefaultsWithoutADocument) {
    auto area = make<TestArea>();
    EXPECT_EQ(area->getSceneDepth(), 20);
    EXPECT_EQ(area->getChartDepth(), 10);
    EXPECT_FALSE(area->isView3DMode());
    EXPECT_EQ(area->getAspectShading(), 0.7F);
    EXPECT_EQ(area->getTheme(), ChartTheme::ColoredFlat);
    EXPECT_EQ(area->getSerieCount(), 1);
}

TEST(StyleArea, PaintsItsBackgroundAndLeavesNoStyleBehind) {
    const auto surface = make<RecordingSurface>();
    VexaRenderContext context(surface, 200, 100);
    auto area = make<TestArea>();
    area->x_.setValue(Length(5));
    area->height_.setValue(percent(50));
    area->fill_.setValue(paint(0xff0000));
    area->drawBackground(context);
    EXPECT_EQ(surface->calls, (std::vector<std::string>{"rectangle 5 0 200 50 0 0"}));
    EXPECT_TRUE(surface->state().fill.isEmpty());
    EXPECT_TRUE(surface->state().font.isEmpty());
}

template <class T>
std::string styleAfterUpdate(T& object) {
    const auto surface = make<RecordingSurface>();
    VexaRenderContext context(surface, 200, 100);
    context.setFill(make<SolidColorBrush>(rgb(0x0000ff)));
    context.setStroke(make<Stroke>(make<SolidColorBrush>(rgb(0x00ff00)), 2.0F));
    object.updateRenderContext(context, ColorAspect::Darker, 0.5F);
    const DrawingState& state = surface->state();
    return describe(state.fill) + ", " + describe(state.stroke) + ", " + state.font->getFontFamily().toUtf8();
}

// What is empty leaves what the surface had: blue, and a green line of 2 px.
TEST(StyleArea, UpdateSetsOnlyWhatThereIs) {
    auto area = make<TestArea>();
    auto element = make<TestElement>();
    EXPECT_EQ(styleAfterUpdate(*area), "#0000ff/1, 2 #00ff00/1, sans-serif");
    EXPECT_EQ(styleAfterUpdate(*element), "#0000ff/1, 2 #00ff00/1, sans-serif");
    area->fill_.setValue(noPaint());
    element->stroke_.setValue(noPaint());
    EXPECT_EQ(styleAfterUpdate(*area), "#0000ff/1, 2 #00ff00/1, sans-serif") << "none sets nothing either";
    EXPECT_EQ(styleAfterUpdate(*element), "#0000ff/1, 2 #00ff00/1, sans-serif") << "none sets nothing either";
    area->fill_.setValue(paint(0xc80000));
    element->stroke_.setValue(paint(0xc80000));
    EXPECT_EQ(styleAfterUpdate(*area), "#640000/1, 2 #00ff00/1, sans-serif");
    EXPECT_EQ(styleAfterUpdate(*element), "#0000ff/1, 1 #640000/1, sans-serif");
}

}  // namespace
}  // namespace VEXA
