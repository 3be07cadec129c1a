#include <limits>

#include "tests/engine/StyleTestTools.h"

namespace VEXA::Testing {
namespace {

constexpr LengthOrPercent px(float value) { return LengthOrPercent(Length(value)); }
constexpr LengthOrPercent percent(float value) { return LengthOrPercent::percent(value / 100); }
constexpr Length kInch(1, LengthUnit::In);

TEST(StyleRenderContext, LengthsReachTheSurfaceInPx) {
    const auto surface = make<RecordingSurface>();
    VexaRenderContext context(surface, 200, 100);
    context.drawLine(kInch, Length(1), Length(2), Length(3));
    context.drawRectangle(Length(1), kInch, percent(50), percent(50), percent(1), percent(1));
    context.drawRectangle(kInch, Length(2), px(3), px(4), px(5), px(6));
    context.drawEllipse(Length(1), kInch, percent(10));
    context.drawEllipse(kInch, Length(2), px(7));
    context.drawPolygon({{0, 0}, {1, 0}, {1, 1}}, true);
    context.drawPath(PathCommand::rectangle(0, 0, 1, 1, 0, 0));
    context.drawText("Höhe", Length(3), kInch);
    context.drawText("Total");
    context.drawText("");
    EXPECT_EQ(surface->calls,
              "line 96 1 2 3; rectangle 1 96 100 50 2 1; rectangle 96 2 3 4 5 6; ellipse 1 96 20 10; "
              "ellipse 96 2 7 7; path 3; path 4; text Höhe 4 3 96 0 0; text Total 5 0 0 0 0; ")
        << "an empty text draws nothing";
    context.translate(Length(10), kInch);
    context.rotate(90);
    EXPECT_EQ(surface->state().transform.apply({1, 0}), (PointF{10, 97})) << "moved, then turned clockwise";
}

TEST(StyleRenderContext, TextIsMeasuredByTheFontService) {
    const WithFonts fonts;
    VexaRenderContext context(make<NullSurface>(), 200, 100);
    auto font = make<Font>();
    font->setFontSize(20);
    EXPECT_EQ(context.measureText("abc", font), (SizeF{36, 20})) << "3 x 0.6 em; ascent and descent make 1 em";
    EXPECT_EQ(context.measureText("", font), (SizeF{0, 20})) << "the height is that of a line";
    context.setFont(font);
    EXPECT_EQ(context.measureText("abc"), (SizeF{36, 20}));
    EXPECT_EQ(context.getTextDescent(), 4.0F);
}

TEST(StyleRenderContext, MeasuringWithoutFontOrSurfaceFails) {
    struct Nothing final : FontService {
        SmartPtr<FontProgram> getFont(const Font&) override { return nullptr; }
    };
    const WithFonts fonts(std::make_shared<Nothing>());
    const VexaRenderContext context(make<NullSurface>(), 200, 100);
    const std::string measure = "UnreacheableCodeException 2001 VexaRenderContext:172 at 0:0";
    EXPECT_EQ(failureOf([&] { context.measureText("a", nullptr); }), measure);
    EXPECT_EQ(failureOf([&] { context.measureText("a"); }), measure);
    EXPECT_EQ(failureOf([&] { context.getTextDescent(); }),
              "UnreacheableCodeException 2001 VexaRenderContext:202 at 0:0");
    EXPECT_EQ(failureOf([&] { context.measureText("a", make<Font>()); }), kNullPointer) << "a service without program";
    VexaRenderContext without(nullptr, 200, 100);
    EXPECT_EQ(failureOf([&] { without.setFill(nullptr); }), kNullPointer);
    EXPECT_EQ(failureOf([&] { without.drawText("a"); }), kNullPointer);
    EXPECT_EQ(failureOf([&] { without.measureText("a"); }), kNullPointer);
}

TEST(StyleRenderContext, ViewBoxWithoutExtentIsRefused) {
    const CapturedLog log;
    const float infinity = std::numeric_limits<float>::infinity();
    for (const float extent : {0.0F, -5.0F, infinity, std::numeric_limits<float>::quiet_NaN(), 1e-45F}) {
        for (const bool isWidth : {true, false}) {
            const auto surface = make<NullSurface>();
            VexaRenderContext context(surface, 500, 300);
            const ViewBox box{SLengthOrPercent(px(0)), SLengthOrPercent(px(0)),
                              SLengthOrPercent(px(isWidth ? extent : 5)), SLengthOrPercent(px(isWidth ? 5 : extent))};
            const std::string failure = failureOf([&] { context.applyViewBox(px(500), px(300), box, {3, 9}); });
            EXPECT_TRUE(failure.starts_with("Exception 34011 VexaRenderContext:")) << extent;
            EXPECT_TRUE(failure.ends_with("at 3:9")) << extent;
            EXPECT_TRUE(surface->state().transform.isIdentity()) << "nothing is half applied";
        }
    }
}

TEST(StyleArea, ResolvesItsRectangleAndTakesANewOne) {
    VexaRenderContext context(make<NullSurface>(), 200, 100);
    const auto area = make<TestArea>();
    EXPECT_EQ(area->getAreaRect(context), (RectF{0, 0, 200, 100})) << "all of the reference by default";
    give(*area, "x=3pt;y=1;width=25%;height=30");
    EXPECT_EQ(area->getAreaRect(context), (RectF{4, 1, 50, 30}));
    area->setAreaRect({1, 2, 3, 4});
    EXPECT_EQ(area->getAreaRect(context), (RectF{1, 2, 3, 4}));
    EXPECT_EQ(make<TestArea>()->getAreaRect(context), (RectF{0, 0, 200, 100})) << "the shared defaults are untouched";
}

// What is empty leaves what the surface had: blue, and a green line of 2 px.
TEST(StyleArea, UpdateSetsOnlyWhatThereIs) {
    const Case<const char*, const char*> cases[] = {
        {"", "#0000ff/1, 2 #00ff00/1, sans-serif", "nothing but the font"},
        {"fill=#c80000", "#640000/1, 2 #00ff00/1, sans-serif", "shaded"},
        {"stroke=#c80000", "#0000ff/1, 1 #640000/1, sans-serif", "shaded"},
    };
    for (const auto& c : cases) {
        const auto update = [](auto& object) {
            const auto surface = make<NullSurface>();
            VexaRenderContext context(surface, 200, 100);
            context.setFill(make<SolidColorBrush>(rgb(0x0000ff)));
            context.setStroke(make<Stroke>(make<SolidColorBrush>(rgb(0x00ff00)), 2.0F));
            object.updateRenderContext(context, ColorAspect::Darker, 0.5F);
            const DrawingState& state = surface->state();
            return describe(state.fill) + ", " + describe(state.stroke) + ", " + state.font->getFontFamily().toUtf8();
        };
        EXPECT_EQ(ofBoth(c.in, update), c.out) << c.why;
    }
}

}  // namespace
}  // namespace VEXA::Testing
