#include "vexa/support/drawing/RenderContext.h"

#include <gtest/gtest.h>

#include "vexa/support/core/Exception.h"

namespace VEXA {
namespace {

/// Keeps the paths that are drawn, with the state at that time.
class PathRecorder final : public RenderContext {
public:
    struct Drawn {
        SmartPtr<Path> path;
        DrawingState state;
    };

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
        drawn.push_back({path, state()});
    }

    Vector<Drawn> drawn;
    bool fails = false;
};

SmartPtr<Brush> black() { return make<SolidColorBrush>(make<RGBColor>(0, 0, 0)); }

class RenderContextTest : public testing::Test {
protected:
    SmartPtr<PathRecorder> surface = make<PathRecorder>();
};

TEST_F(RenderContextTest, StartsWithNothing) {
    EXPECT_TRUE(surface->state().fill.isEmpty());
    EXPECT_TRUE(surface->state().stroke.isEmpty());
    EXPECT_TRUE(surface->getFont().isEmpty());
    EXPECT_TRUE(surface->state().clip.isEmpty());
    EXPECT_TRUE(surface->state().transform.isIdentity());
}

TEST_F(RenderContextTest, ClosedPolygonsAreFilledOpenOnesOnlyStroked) {
    const SmartPtr<Brush> fill = black();
    surface->setFill(fill);
    surface->setStroke(make<Stroke>(black(), 1.0F));
    surface->drawPolygon({{0, 0}, {9, 0}, {9, 9}}, true);
    surface->drawPolygon({{0, 0}, {9, 0}, {9, 9}}, false);
    ASSERT_EQ(surface->drawn.size(), 2U);
    EXPECT_EQ(surface->drawn[0].state.fill, fill);
    EXPECT_EQ(surface->drawn[0].path->verbs().back(), PathVerb::Close);
    EXPECT_TRUE(surface->drawn[1].state.fill.isEmpty());
    EXPECT_FALSE(surface->drawn[1].state.stroke.isEmpty());
    EXPECT_EQ(surface->drawn[1].path->verbs().back(), PathVerb::LineTo);
    EXPECT_EQ(surface->state().fill, fill) << "the fill is only away for the open polygon";
}

TEST_F(RenderContextTest, APolygonWithoutPointsIsNoOperation) {
    surface->drawPolygon({}, true);
    surface->drawPolygon({}, false);
    EXPECT_TRUE(surface->drawn.empty());
}

TEST_F(RenderContextTest, TheFillComesBackWhenDrawingFails) {
    surface->setFill(black());
    surface->fails = true;
    EXPECT_THROW(surface->drawPolygon({{0, 0}}, false), Exception);
    EXPECT_FALSE(surface->state().fill.isEmpty());
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
        {
            const RenderContextScope inner(surface);
            surface->setFill(nullptr);
        }
        EXPECT_FALSE(surface->state().fill.isEmpty()) << "the inner scope ends with the state of the outer one";
    }
    EXPECT_TRUE(surface->state().fill.isEmpty());
    EXPECT_TRUE(surface->state().stroke.isEmpty());
    EXPECT_TRUE(surface->state().font.isEmpty());
    EXPECT_TRUE(surface->state().clip.isEmpty());
    EXPECT_EQ(surface->state().transform, Matrix(1, 0, 0, 1, 1, 2));
}

TEST_F(RenderContextTest, AScopeOverNoSurfaceIsLetBe) { const RenderContextScope scope(nullptr); }

TEST_F(RenderContextTest, ClipsChainInwardsWithTheTransformOfTheirTime) {
    const SmartPtr<Path> outer = PathCommand::rectangle(0, 0, 100, 100, 0, 0);
    const SmartPtr<Path> inner = PathCommand::ellipse(0, 0, 10, 10);
    surface->setClip(outer);
    surface->addTranslateTransform(50, 50);
    surface->setClip(inner);
    surface->addTranslateTransform(7, 7);
    const SmartPtr<ClipNode> clip = surface->state().clip;
    EXPECT_EQ(clip->path, inner);
    EXPECT_EQ(clip->transform, Matrix(1, 0, 0, 1, 50, 50));
    EXPECT_EQ(clip->depth, 2U);
    EXPECT_EQ(clip->outer->path, outer);
    EXPECT_TRUE(clip->outer->transform.isIdentity());
    EXPECT_TRUE(clip->outer->outer.isEmpty());
}

TEST_F(RenderContextTest, NoPathClipsNothing) {
    surface->setClip(nullptr);
    EXPECT_TRUE(surface->state().clip.isEmpty());
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
