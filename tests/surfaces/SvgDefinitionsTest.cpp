#include <gtest/gtest.h>

#include <limits>
#include <regex>
#include <set>

#include "tests/surfaces/SurfaceTesting.h"

namespace VEXA {
namespace {

/// With `ID1`, `ID2`, … for the ids in the order in which they appear: which ones are the same counts, not their
/// letters.
std::string withoutIds(std::string text) {
    static const std::regex kId("vx-[a-z2-7]{13}");
    Vector<std::string> ids;
    for (std::smatch match; std::regex_search(text, match, kId);) {
        const std::string id = match.str();
        ids.push_back(id);
        const std::string name = "ID" + std::to_string(ids.size());
        for (std::size_t at = text.find(id); at != text.npos; at = text.find(id)) text.replace(at, id.size(), name);
    }
    return text;
}

struct DefinitionCase {
    const char* why;
    Drawing draw;
    const char* body;
};

class Definitions : public testing::TestWithParam<DefinitionCase> {};

TEST_P(Definitions, AreWritten) { EXPECT_EQ(withoutIds(svgBody(GetParam().draw)), GetParam().body) << GetParam().why; }

void dot(RenderContext& c) { c.drawEllipse(1, 1, 1, 1); }

Drawing dotIn(SmartPtr<Brush> brush) {
    return [brush](RenderContext& c) {
        c.setFill(brush);
        dot(c);
    };
}

SmartPtr<Brush> elliptic() {
    const SmartPtr<GradientBrush> gradient = make<RadialGradientBrush>(
        0.5F, 0.25F, 0.5F, 0.125F, GradientUnits::ObjectBoundingBox, GradientSpreadMethod::Reflect);
    gradient->addStop(0, colorOf(0xFFFFFF), 0.5F);
    gradient->addStop(2, colorOf(0), 1);
    return gradient;
}

SmartPtr<Brush> turned() {
    const SmartPtr<GradientBrush> gradient = redToBlue(GradientUnits::UserSpaceOnUse, GradientSpreadMethod::Repeat);
    gradient->addMatrixTransform(0, 1, -1, 0, 10, 0.125F);
    gradient->setOpacity(0.5F);
    return gradient;
}

INSTANTIATE_TEST_SUITE_P(
    Gradients, Definitions,
    testing::Values(
        DefinitionCase{"linear, over the box, padded: SVG's own defaults are left out", dotIn(redToBlue()),
                       "<defs>\n"
                       "<linearGradient id=\"ID1\" x1=\"0\" y1=\"0\" x2=\"1\" y2=\"0\">"
                       "<stop offset=\"0\" stop-color=\"#ff0000\"/><stop offset=\"1\" stop-color=\"#0000ff\"/>"
                       "</linearGradient>\n"
                       "</defs>\n"
                       "<circle cx=\"1\" cy=\"1\" r=\"1\" fill=\"url(#ID1)\"/>\n"},
        DefinitionCase{
            "units, spread, matrix with all digits, opacity of the brush at the shape", dotIn(turned()),
            "<defs>\n"
            "<linearGradient id=\"ID1\" x1=\"0\" y1=\"0\" x2=\"1\" y2=\"0\" gradientUnits=\"userSpaceOnUse\" "
            "spreadMethod=\"repeat\" gradientTransform=\"matrix(0 1 -1 0 10 0.125)\">"
            "<stop offset=\"0\" stop-color=\"#ff0000\"/><stop offset=\"1\" stop-color=\"#0000ff\"/>"
            "</linearGradient>\n"
            "</defs>\n"
            "<circle cx=\"1\" cy=\"1\" r=\"1\" fill=\"url(#ID1)\" fill-opacity=\"0.5\"/>\n"},
        // y is a quarter of x: y' = 0.25 + (y - 0.25) / 4 = y / 4 + 0.1875
        DefinitionCase{"an ellipse is a circle stretched about its centre; offsets are cut, opacity at the stop",
                       dotIn(elliptic()),
                       "<defs>\n"
                       "<radialGradient id=\"ID1\" cx=\"0.5\" cy=\"0.25\" r=\"0.5\" spreadMethod=\"reflect\" "
                       "gradientTransform=\"matrix(1 0 0 0.25 0 0.1875)\">"
                       "<stop offset=\"0\" stop-color=\"#ffffff\" stop-opacity=\"0.5\"/>"
                       "<stop offset=\"1\" stop-color=\"#000000\"/>"
                       "</radialGradient>\n"
                       "</defs>\n"
                       "<circle cx=\"1\" cy=\"1\" r=\"1\" fill=\"url(#ID1)\"/>\n"},
        DefinitionCase{"a level line has no box to stretch over: the last stop",
                       [](RenderContext& c) {
                           c.setStroke(make<Stroke>(redToBlue(), 1.0F));
                           c.drawLine(0, 5, 9, 5.001F);
                           c.drawPath(PathCommand::polygon({{3, 0}, {3, 7}, {3, 9}}, false));
                       },
                       "<line x1=\"0\" y1=\"5\" x2=\"9\" y2=\"5\" stroke=\"#0000ff\"/>\n"
                       "<path d=\"M3 0L3 7L3 9\" fill=\"none\" stroke=\"#0000ff\"/>\n"},
        DefinitionCase{
            "a gradient over the page needs no box",
            [](RenderContext& c) {
                c.setStroke(make<Stroke>(redToBlue(GradientUnits::UserSpaceOnUse), 1.0F));
                c.drawLine(0, 5, 9, 5);
            },
            "<defs>\n"
            "<linearGradient id=\"ID1\" x1=\"0\" y1=\"0\" x2=\"1\" y2=\"0\" gradientUnits=\"userSpaceOnUse\">"
            "<stop offset=\"0\" stop-color=\"#ff0000\"/><stop offset=\"1\" stop-color=\"#0000ff\"/>"
            "</linearGradient>\n"
            "</defs>\n"
            "<line x1=\"0\" y1=\"5\" x2=\"9\" y2=\"5\" stroke=\"url(#ID1)\"/>\n"},
        DefinitionCase{"the same content is defined once, whoever owns it; what no shape paints is not defined",
                       [](RenderContext& c) {
                           for (int i = 0; i < 2; ++i) {
                               c.setFill(redToBlue());
                               dot(c);
                           }
                           c.setFill(elliptic());
                       },
                       "<defs>\n"
                       "<linearGradient id=\"ID1\" x1=\"0\" y1=\"0\" x2=\"1\" y2=\"0\">"
                       "<stop offset=\"0\" stop-color=\"#ff0000\"/><stop offset=\"1\" stop-color=\"#0000ff\"/>"
                       "</linearGradient>\n"
                       "</defs>\n"
                       "<circle cx=\"1\" cy=\"1\" r=\"1\" fill=\"url(#ID1)\"/>\n"
                       "<circle cx=\"1\" cy=\"1\" r=\"1\" fill=\"url(#ID1)\"/>\n"}));

INSTANTIATE_TEST_SUITE_P(
    Clips, Definitions,
    testing::Values(
        DefinitionCase{"a rectangle stays one under scale and translation, a negative scale included",
                       [](RenderContext& c) {
                           c.setFill(solid(0));
                           c.addTranslateTransform(10, 20);
                           c.addScaleTransform(2, -3);
                           c.setClip(PathCommand::rectangle(1, 1, 5, 5, 0, 0));
                           dot(c);
                       },
                       "<defs>\n"
                       "<clipPath id=\"ID1\"><rect x=\"12\" y=\"2\" width=\"10\" height=\"15\"/></clipPath>\n"
                       "</defs>\n"
                       "<g clip-path=\"url(#ID1)\">\n"
                       "<circle cx=\"1\" cy=\"1\" r=\"1\" transform=\"matrix(2 0 0 -3 10 20)\" fill=\"#000000\"/>\n"
                       "</g>\n"},
        DefinitionCase{"another path carries the transform of its time and the rule that fills it",
                       [](RenderContext& c) {
                           const SmartPtr<RenderContext> surface(&c);
                           c.setFill(solid(0));
                           c.addTranslateTransform(10, 20);
                           c.setClip(PathCommand::polygon({{0, 0}, {5, 0}, {5, 5}}, true));
                           c.addTranslateTransform(-10, -20);
                           dot(c);
                       },
                       "<defs>\n"
                       "<clipPath id=\"ID1\"><path d=\"M0 0L5 0L5 5Z\" transform=\"translate(10 20)\" "
                       "clip-rule=\"evenodd\"/></clipPath>\n"
                       "</defs>\n"
                       "<g clip-path=\"url(#ID1)\">\n"
                       "<circle cx=\"1\" cy=\"1\" r=\"1\" fill=\"#000000\"/>\n"
                       "</g>\n"},
        DefinitionCase{"a turned rectangle is a path",
                       [](RenderContext& c) {
                           c.setFill(solid(0));
                           c.addRotateTransform(90);
                           c.setClip(PathCommand::rectangle(0, 0, 5, 5, 0, 0));
                           dot(c);
                       },
                       "<defs>\n"
                       "<clipPath id=\"ID1\"><path d=\"M0 0L5 0L5 5L0 5Z\" transform=\"matrix(0 1 -1 0 0 0)\" "
                       "clip-rule=\"evenodd\"/></clipPath>\n"
                       "</defs>\n"
                       "<g clip-path=\"url(#ID1)\">\n"
                       "<circle cx=\"1\" cy=\"1\" r=\"1\" transform=\"matrix(0 1 -1 0 0 0)\" fill=\"#000000\"/>\n"
                       "</g>\n"},
        DefinitionCase{"four corners alone do not make a rectangle",
                       [](RenderContext& c) {
                           c.setFill(solid(0));
                           c.setClip(PathCommand::polygon({{0, 0}, {5, 0}, {5, 5}, {1, 5}}, true));
                           dot(c);
                       },
                       "<defs>\n"
                       "<clipPath id=\"ID1\"><path d=\"M0 0L5 0L5 5L1 5Z\" clip-rule=\"evenodd\"/></clipPath>\n"
                       "</defs>\n"
                       "<g clip-path=\"url(#ID1)\">\n"
                       "<circle cx=\"1\" cy=\"1\" r=\"1\" fill=\"#000000\"/>\n"
                       "</g>\n"},
        DefinitionCase{"nothing lies within a path without a place",
                       [](RenderContext& c) {
                           DrawingState state;
                           state.fill = solid(0);
                           state.clip =
                               make<ClipNode>(PathCommand::rectangle(0, 0, 5, 5, 0, 0),
                                              Matrix().scale(std::numeric_limits<float>::infinity(), 1), nullptr);
                           c.restoreState(state);
                           dot(c);
                       },
                       "<defs>\n"
                       "<clipPath id=\"ID1\"></clipPath>\n"
                       "</defs>\n"
                       "<g clip-path=\"url(#ID1)\">\n"
                       "<circle cx=\"1\" cy=\"1\" r=\"1\" fill=\"#000000\"/>\n"
                       "</g>\n"},
        DefinitionCase{"nothing lies within an empty path",
                       [](RenderContext& c) {
                           c.setFill(solid(0));
                           c.setClip(make<Path>());
                           dot(c);
                       },
                       "<defs>\n"
                       "<clipPath id=\"ID1\"></clipPath>\n"
                       "</defs>\n"
                       "<g clip-path=\"url(#ID1)\">\n"
                       "<circle cx=\"1\" cy=\"1\" r=\"1\" fill=\"#000000\"/>\n"
                       "</g>\n"},
        DefinitionCase{"a clip that nothing is painted in leaves no group",
                       [](RenderContext& c) {
                           c.setClip(PathCommand::rectangle(0, 0, 5, 5, 0, 0));
                           dot(c);
                       },
                       ""}));

/// The groups and circles of a document, as brackets and the circles' radii.
std::string shapeOf(const std::string& body) {
    std::string shape;
    for (std::size_t at = body.find('<'); at != body.npos; at = body.find('<', at + 1)) {
        if (body.compare(at, 3, "<g ") == 0) shape += '(';
        if (body.compare(at, 4, "</g>") == 0) shape += ')';
        if (body.compare(at, 8, "<circle ") == 0) shape += between(body.substr(at), " r=\"", "\"");
    }
    return shape;
}

TEST(SvgClips, GroupsOpenAndCloseAsTheClipInForceChanges) {
    const std::string body = svgBody([](RenderContext& c) {
        const SmartPtr<RenderContext> surface(&c);
        const SmartPtr<Path> path = PathCommand::rectangle(0, 0, 9, 9, 0, 0);
        float radius = 0;
        const auto draw = [&] {
            ++radius;
            c.drawEllipse(0, 0, radius, radius);
        };
        c.setFill(solid(0));
        draw();  // 1
        const RenderContextScope whole(surface);
        c.setClip(path);
        draw();  // 2
        draw();  // 3
        {
            const RenderContextScope scope(surface);
            c.setClip(path);
            draw();  // 4
            const RenderContextScope inner(surface);
            c.setClip(path);
            c.setClip(path);
            draw();  // 5
        }
        {
            const RenderContextScope scope(surface);
            c.setClip(path);
            draw();  // 6
        }
        draw();  // 7
    });
    EXPECT_EQ(shapeOf(body), "1(23(4((5)))(6)7)") << "a clip around both stays open; siblings get groups of their own";
}

TEST(SvgClips, ClipsAreSharedAndEndedWithThePage) {
    const std::string body = svgBody([](RenderContext& c) {
        const SmartPtr<RenderContext> surface(&c);
        c.setFill(solid(0));
        for (int i = 0; i < 3; ++i) {
            const RenderContextScope scope(surface);
            c.setClip(PathCommand::rectangle(0, 0, 9, 9, 0, 0));
            dot(c);
        }
    });
    EXPECT_EQ(shapeOf(body), "(1)(1)(1)");
    EXPECT_EQ(body.find("<clipPath"), body.rfind("<clipPath"));
}

TEST(SvgClips, AVeryLongChainIsWritten) {
    const std::string body = svgBody([](RenderContext& c) {
        const SmartPtr<Path> path = PathCommand::rectangle(0, 0, 9, 9, 0, 0);
        for (int i = 0; i < 100'000; ++i) c.setClip(path);
        c.setFill(solid(0));
        dot(c);
    });
    EXPECT_EQ(shapeOf(body), std::string(100'000, '(') + "1" + std::string(100'000, ')'));
}

std::set<std::string> idsOf(const std::string& text) {
    static const std::regex kId("id=\"([^\"]*)\"");
    std::set<std::string> ids;
    for (std::sregex_iterator match(text.begin(), text.end(), kId), end; match != end; ++match) ids.insert((*match)[1]);
    return ids;
}

TEST(SvgIds, AreEqualInTwoDocumentsForEqualContentOnly) {
    const auto ids = [](float x2) {
        return idsOf(svgBody([x2](RenderContext& c) {
            const SmartPtr<GradientBrush> gradient = make<LinearGradientBrush>(
                0.0F, 0.0F, x2, 0.0F, GradientUnits::ObjectBoundingBox, GradientSpreadMethod::Pad);
            gradient->setStops(redToBlue()->getStops());
            dotIn(gradient)(c);
        }));
    };
    ASSERT_EQ(ids(1).size(), 1U);
    EXPECT_EQ(ids(1), ids(1));
    EXPECT_NE(ids(1), ids(0.5F));
}

TEST(SvgIds, EachFactOfAGradientCounts) {
    const std::string body = svgBody([](RenderContext& c) {
        const auto with = [&](auto change) {
            const SmartPtr<GradientBrush> gradient = redToBlue();
            change(*gradient);
            dotIn(gradient)(c);
        };
        with([](GradientBrush&) {});
        with([](GradientBrush& g) { g.addMatrixTransform(1, 0, 0, 1, 0.1F, 0); });
        with([](GradientBrush& g) { g.addStop(1, colorOf(0), 1); });
        with([](GradientBrush& g) { g.setStops({{0, colorOf(0xFF0000), 1}, {1, colorOf(0x0000FE), 1}}); });
        with([](GradientBrush& g) { g.setStops({{0, colorOf(0xFF0000), 1}, {1, colorOf(0x0000FF), 0.5F}}); });
        with([](GradientBrush& g) { g.setStops({{0, colorOf(0xFF0000), 1}, {0.9F, colorOf(0x0000FF), 1}}); });
        dotIn(redToBlue(GradientUnits::UserSpaceOnUse))(c);
        dotIn(redToBlue(GradientUnits(), GradientSpreadMethod::Repeat))(c);
        dotIn(redToBlue(GradientUnits(), GradientSpreadMethod::Reflect))(c);
    });
    EXPECT_EQ(idsOf(body).size(), 9U);
}

}  // namespace
}  // namespace VEXA
