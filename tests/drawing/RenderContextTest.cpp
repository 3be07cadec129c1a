#include "vexa/support/drawing/RenderContext.h"

#include <gtest/gtest.h>

#include "vexa/support/core/Exception.h"

namespace VEXA {
namespace {

/// Keeps the paths that are drawn, with the state at that time.
class PathRecorder final : public RenderContext {
public:
    void beginDocument() override {}
    void endDocument() override {}
    void beginPage(const SizeF&) override {}
    void endPage() override {}
    void drawLine(float, float, float, float) override {}
    void drawRectangle(float, float, float, float, float, float) override {}
    void drawEllipse(float, float, float, float) override {}
    void drawText(const String&, int, float, float, float, int) override {}
    void drawPath(SmartPtr<Path> path) override {
        if (fails) throw Exception(2001);
        drawn.emplace_back(path, state());
    }

    Vector<std::pair<SmartPtr<Path>, DrawingState>> drawn;
    bool fails = false;
};

SmartPtr<Brush> black() { return make<SolidColorBrush>(make<RGBColor>(0, 0, 0)); }

struct RenderContextTest : testing::Test {
    SmartPtr<PathRecorder> surface = make<PathRecorder>();
};

TEST_F(RenderContextTest, ClosedPolygonsAreFilledOpenOnesOnlyStroked) {
    const SmartPtr<Brush> fill = black();
    surface->setFill(fill);
    surface->setStroke(make<Stroke>(black(), 1.0F));
    surface->drawPolygon({{0, 0}, {9, 0}, {9, 9}}, true);
    surface->drawPolygon({{0, 0}, {9, 0}, {9, 9}}, false);
    surface->drawPolygon({}, true);
    ASSERT_EQ(surface->drawn.size(), 2U) << "a polygon without points is no operation";
    const auto& [closed, closedState] = surface->drawn[0];
    EXPECT_EQ(closedState.fill, fill);
    EXPECT_EQ(closed->verbs().back(), PathVerb::Close);
    const auto& [open, openState] = surface->drawn[1];
    EXPECT_TRUE(openState.fill.isEmpty() && !openState.stroke.isEmpty());
    EXPECT_EQ(open->verbs().back(), PathVerb::LineTo);
    EXPECT_EQ(surface->state().fill, fill) << "the fill is only away for the open polygon";
    surface->fails = true;
    EXPECT_THROW(surface->drawPolygon({{0, 0}}, false), Exception);
    EXPECT_EQ(surface->state().fill, fill) << "and comes back when drawing fails";
}

TEST_F(RenderContextTest, AScopeRestoresEverything) {
    surface->addTranslateTransform(1, 2);
    {
        const RenderContextScope scope(surface);
        surface->setFill(black());
        surface->setStroke(make<Stroke>(black(), 1.0F));
        surface->setFont(make<Font>());
        surface->setClip(PathCommand::rectangle(0, 0, 1, 1, 0, 0));
        surface->addScaleTransform(2, 2);
        surface->addRotateTransform(45);
    }
    const DrawingState& state = surface->state();
    EXPECT_TRUE(state.fill.isEmpty() && state.stroke.isEmpty() && state.font.isEmpty() && state.clip.isEmpty());
    EXPECT_EQ(state.transform, Matrix(1, 0, 0, 1, 1, 2));
    surface->setClip(nullptr);
    EXPECT_TRUE(state.clip.isEmpty()) << "no path clips nothing";
    const RenderContextScope overNoSurface(nullptr);
}

TEST_F(RenderContextTest, ALongChainOfClipsIsFreedWithoutRecursion) {
    const SmartPtr<Path> path = PathCommand::rectangle(0, 0, 1, 1, 0, 0);
    SmartPtr<ClipNode> middle;
    {
        const RenderContextScope scope(surface);
        for (int i = 0; i < 1'000'000; ++i) {
            if (i == 500'000) middle = surface->state().clip;
            surface->setClip(path);
        }
    }
    EXPECT_EQ(middle->depth, 500'000U) << "a chain that someone still holds stays whole";
    EXPECT_FALSE(middle->outer->outer.isEmpty());
}

}  // namespace
}  // namespace VEXA
