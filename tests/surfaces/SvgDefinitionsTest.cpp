#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <tuple>

#include "tests/surfaces/SurfaceTesting.h"
#include "vexa/surfaces/ContentIds.h"

namespace VEXA {
namespace {

std::set<std::string> idsOf(const std::string& text) {
    static const std::regex kId("id=\"(vx-[a-z2-7]{13})\"");
    std::set<std::string> ids;
    for (std::sregex_iterator match(text.begin(), text.end(), kId), end; match != end; ++match) ids.insert((*match)[1]);
    return ids;
}

/// The elements of a document with `ID` for the one id that it may have: that it is the same counts, not its letters.
std::string bodyOf(const Drawing& draw) {
    const std::string body = svgBody(draw);
    const std::set<std::string> ids = idsOf(body);
    EXPECT_LE(ids.size(), 1U) << body;
    return ids.empty() ? body : std::regex_replace(body, std::regex(*ids.begin()), "ID");
}

void dot(RenderContext& c) { c.drawEllipse(1, 1, 1, 1); }

Drawing dotIn(SmartPtr<Brush> brush) { return painted(brush, nullptr, dot); }

SmartPtr<Brush> elliptic() {
    const SmartPtr<GradientBrush> gradient = make<RadialGradientBrush>(
        0.5F, 0.25F, 0.5F, 0.125F, GradientUnits::ObjectBoundingBox, GradientSpreadMethod::Reflect);
    gradient->setStops({{0, colorOf(0xFFFFFF), 0.5F}, {2, colorOf(0), 1}});
    return gradient;
}

SmartPtr<Brush> turned() {
    const SmartPtr<GradientBrush> gradient = redToBlue(GradientUnits::UserSpaceOnUse, GradientSpreadMethod::Repeat);
    gradient->addMatrixTransform(0, 1, -1, 0, 10, 0.125F);
    gradient->setOpacity(0.5F);
    return gradient;
}

SmartPtr<Brush> offItsEnds() {
    const SmartPtr<GradientBrush> gradient = redToBlue(GradientUnits(), GradientSpreadMethod::Repeat);
    gradient->setStops({{0.25F, colorOf(0x00FF00), 1}, {0.5F, colorOf(0x0000FF), 1}});
    return gradient;
}

void levelLines(RenderContext& c) {
    c.drawLine(0, 5, 9, 5.001F);
    c.drawPath(PathCommand::polygon({{3, 0}, {3, 7}, {3, 9}}, false));
}

#define VEXA_LINEAR(attributes)                                                               \
    "<defs>\n<linearGradient id=\"ID\" x1=\"0\" y1=\"0\" x2=\"1\" y2=\"0\"" attributes        \
    "><stop offset=\"0\" stop-color=\"#ff0000\"/><stop offset=\"1\" stop-color=\"#0000ff\"/>" \
    "</linearGradient>\n</defs>\n"
#define VEXA_DOT "<circle cx=\"1\" cy=\"1\" r=\"1\" fill=\"url(#ID)\""

TEST(SvgDefinitions, Gradients) {
    const DrawingCase cases[] = {
        {"SVG's own defaults are left out; the same content is defined once, whoever owns it",
         [](auto& c) {
             dotIn(redToBlue())(c);
             dotIn(redToBlue())(c);
             c.setFill(elliptic());  // paints no shape, so it is not defined
         },
         VEXA_LINEAR("") VEXA_DOT "/>\n" VEXA_DOT "/>\n"},
        {"units, spread, matrix with all digits, opacity of the brush at the shape", dotIn(turned()),
         VEXA_LINEAR(" gradientUnits=\"userSpaceOnUse\" spreadMethod=\"repeat\" "
                     "gradientTransform=\"matrix(0 1 -1 0 10 0.125)\"") VEXA_DOT " fill-opacity=\"0.5\"/>\n"},
        // y is a quarter of x: y' = 0.25 + (y - 0.25) / 4 = y / 4 + 0.1875
        {"an ellipse is a circle stretched about its centre; offsets are cut, opacity at the stop", dotIn(elliptic()),
         "<defs>\n<radialGradient id=\"ID\" cx=\"0.5\" cy=\"0.25\" r=\"0.5\" spreadMethod=\"reflect\" "
         "gradientTransform=\"matrix(1 0 0 0.25 0 0.1875)\"><stop offset=\"0\" stop-color=\"#ffffff\" "
         "stop-opacity=\"0.5\"/><stop offset=\"1\" stop-color=\"#000000\"/></radialGradient>\n</defs>\n" VEXA_DOT
         "/>\n"},
        {"a repeated one has stops at its ends, without which cairo blends the last colour into the first",
         dotIn(offItsEnds()),
         "<defs>\n<linearGradient id=\"ID\" x1=\"0\" y1=\"0\" x2=\"1\" y2=\"0\" spreadMethod=\"repeat\">"
         "<stop offset=\"0\" stop-color=\"#00ff00\"/><stop offset=\"0.25\" stop-color=\"#00ff00\"/>"
         "<stop offset=\"0.5\" stop-color=\"#0000ff\"/><stop offset=\"1\" stop-color=\"#0000ff\"/>"
         "</linearGradient>\n</defs>\n" VEXA_DOT "/>\n"},
        {"a level line has no box to stretch over: the last stop",
         painted(nullptr, make<Stroke>(redToBlue(), 1.0F), levelLines),
         "<line x1=\"0\" y1=\"5\" x2=\"9\" y2=\"5\" stroke=\"#0000ff\"/>\n"
         "<path d=\"M3 0L3 7L3 9\" fill=\"none\" stroke=\"#0000ff\"/>\n"},
        {"a gradient over the page needs no box",
         painted(nullptr, make<Stroke>(redToBlue(GradientUnits::UserSpaceOnUse), 1.0F),
                 [](auto& c) { c.drawLine(0, 5, 9, 5); }),
         VEXA_LINEAR(
             " gradientUnits=\"userSpaceOnUse\"") "<line x1=\"0\" y1=\"5\" x2=\"9\" y2=\"5\" stroke=\"url(#ID)\"/>\n"},
    };
    for (const DrawingCase& c : cases) EXPECT_EQ(bodyOf(c.draw), c.expected) << c.why;
}

TEST(SvgDefinitions, EachFactOfAGradientCounts) {
    const auto made = [](float moved, const StopPoint& last) {
        const SmartPtr<GradientBrush> gradient = redToBlue();
        gradient->addMatrixTransform(1, 0, 0, 1, moved, 0);
        gradient->setStops({{0, colorOf(0xFF0000), 1}, last});
        return gradient;
    };
    const StopPoint blue{1, colorOf(0x0000FF), 1};
    const Vector<SmartPtr<GradientBrush>> gradients = {
        redToBlue(),
        redToBlue(GradientUnits::UserSpaceOnUse),
        redToBlue(GradientUnits(), GradientSpreadMethod::Repeat),
        redToBlue(GradientUnits(), GradientSpreadMethod::Reflect),
        made(0.1F, blue),
        made(0.1000001F, blue),
        made(0, {1, colorOf(0x0000FE), 1}),
        made(0, {1, colorOf(0x0000FF), 0.5F}),
        made(0, {0.9F, colorOf(0x0000FF), 1}),
        make<LinearGradientBrush>(0.0F, 0.0F, 0.5F, 0.0F, GradientUnits::ObjectBoundingBox, GradientSpreadMethod::Pad),
    };
    gradients.back()->setStops(gradients.front()->getStops());
    std::set<std::string> ids;
    for (const auto& gradient : gradients) ids.merge(idsOf(svgBody(dotIn(gradient))));
    EXPECT_EQ(ids.size(), gradients.size());
    EXPECT_EQ(idsOf(svgBody(dotIn(redToBlue()))), idsOf(svgBody(dotIn(gradients.front())))) << "two equal documents";
}

ContentIds::Result intern(ContentIds& ids, const Vector<std::uint32_t>& words) {
    for (const std::uint32_t word : words) ids.add(word);
    return ids.intern();
}

TEST(ContentIds, TellWhatIsNewByTheContentAlone) {
    ContentIds ids;
    const auto first = intern(ids, {1, 2});
    EXPECT_TRUE(first.isNew);
    EXPECT_FALSE(intern(ids, {1, 2}).isNew);
    EXPECT_TRUE(intern(ids, {2, 1}).isNew);
    EXPECT_TRUE(intern(ids, {1, 2, 0}).isNew) << "zeros at the end count";
    EXPECT_FALSE(intern(ids, {1, 2}).isNew) << "a repeated content leaves the others as they were";
    ids.clear();
    EXPECT_TRUE(intern(ids, {4}).isNew);
    EXPECT_TRUE(intern(ids, {1, 2}).isNew);
    EXPECT_EQ(intern(ids, {1, 2}).id, first.id) << "in another order";
}

TEST(ContentIds, DifferentContentsWithOneHashAreKeptApart) {
    // found by search: both come to the same hash
    const Vector<std::uint32_t> one = {0x1ED3BFC, 0xEED3E09F, 0};
    const Vector<std::uint32_t> other = {0xC4045E0B, 0x210CF879, 0x5DC07DAA};
    ContentIds alone;
    const auto expected = intern(alone, other);
    ContentIds ids;
    const auto first = intern(ids, one);
    ASSERT_EQ(first.id, expected.id) << "the hash has changed: search for another pair";
    const auto second = intern(ids, other);
    EXPECT_TRUE(second.isNew);
    EXPECT_NE(second.id, first.id);
    EXPECT_EQ(intern(ids, other).id, second.id);
    EXPECT_EQ(intern(ids, one).id, first.id);
}

TEST(SvgClips, ArePathsInTheTransformOfTheirTime) {
    const auto square = PathCommand::rectangle(1, 1, 5, 5, 0, 0);
    const auto triangle = PathCommand::polygon({{0, 0}, {5, 0}, {5, 5}}, true);
    const auto corners = PathCommand::polygon({{0, 0}, {5, 0}, {5, 5}, {1, 5}}, true);
    const std::tuple<const char*, SmartPtr<Path>, Matrix, std::string> cases[] = {
        {"a rectangle stays one, under a negative scale too", square, Matrix(2, 0, 0, -3, 10, 20),
         R"(<rect x="12" y="2" width="10" height="15"/>)"},
        {"another path carries the transform, and the rule that fills it", triangle, Matrix(1, 0, 0, 1, 10, 20),
         R"svg(<path d="M0 0L5 0L5 5Z" transform="translate(10 20)" clip-rule="evenodd"/>)svg"},
        {"a turned rectangle is a path", square, Matrix(0, 1, -1, 0, 0, 0),
         R"svg(<path d="M1 1L6 1L6 6L1 6Z" transform="matrix(0 1 -1 0 0 0)" clip-rule="evenodd"/>)svg"},
        {"four corners alone make no rectangle", corners, Matrix(),
         R"(<path d="M0 0L5 0L5 5L1 5Z" clip-rule="evenodd"/>)"},
        {"nothing lies within a path without a place", square, Matrix(kInfinity, 0, 0, 1, 0, 0), ""},
        {"nor within one with such a corner", PathCommand::polygon({{0, 0}, {5, kNaN}, {5, 5}}, true), Matrix(), ""},
        {"nor within an empty path", make<Path>(), Matrix(), ""},
    };
    for (const auto& [why, path, matrix, content] : cases) {
        DrawingState state;
        state.fill = solid(0);
        state.clip = make<ClipNode>(path, matrix, nullptr);
        const auto draw = [&state](RenderContext& context) {
            context.restoreState(state);
            dot(context);
        };
        EXPECT_EQ(bodyOf(draw), "<defs>\n<clipPath id=\"ID\">" + content +
                                    "</clipPath>\n</defs>\n<g clip-path=\"url(#ID)\">\n"
                                    "<circle cx=\"1\" cy=\"1\" r=\"1\" fill=\"#000000\"/>\n</g>\n")
            << why;
        state.fill = nullptr;
        EXPECT_EQ(bodyOf(draw), "") << "a clip that nothing is painted in leaves no group";
    }
}

/// The groups and circles of a document, as brackets and the circles' radii.
std::string shapeOf(const std::string& body) {
    std::string shape;
    for (std::size_t at = body.find('<'); at != body.npos; at = body.find('<', at + 1)) {
        if (body.compare(at, 3, "<g ") == 0) shape += '(';
        if (body.compare(at, 4, "</g>") == 0) shape += ')';
        if (body.compare(at, 8, "<circle ") == 0) shape += between(body.substr(at, 100), " r=\"", "\"");
    }
    return shape;
}

TEST(SvgClips, GroupsOpenAndCloseAsTheClipInForceChanges) {
    const std::string body = bodyOf([](RenderContext& c) {
        float radius = 0;
        const auto drawClipped = [&](int clips) {
            for (int i = 0; i < clips; ++i) c.setClip(PathCommand::rectangle(0, 0, 9, 9, 0, 0));
            ++radius;
            c.drawEllipse(0, 0, radius, radius);
        };
        c.setFill(solid(0));
        drawClipped(0);
        drawClipped(1);
        const DrawingState once = c.state();
        drawClipped(0);
        drawClipped(1);
        drawClipped(2);
        c.restoreState(once);
        drawClipped(1);
        c.restoreState(once);
        drawClipped(0);
    });
    EXPECT_EQ(shapeOf(body), "1(23(4((5)))(6)7)") << "a clip around both stays open; siblings get groups of their own";
    EXPECT_EQ(body.find("<clipPath"), body.rfind("<clipPath")) << "equal clips are defined once";
}

TEST(SvgClips, AVeryLongChainIsWritten) {
    const std::string body = svgBody([](RenderContext& c) {
        const SmartPtr<Path> path = PathCommand::rectangle(0, 0, 9, 9, 0, 0);
        for (int i = 0; i < 100'000; ++i) c.setClip(path);
        dotIn(solid(0))(c);
    });
    EXPECT_EQ(shapeOf(body), std::string(100'000, '(') + "1" + std::string(100'000, ')'));
}

}  // namespace
}  // namespace VEXA
