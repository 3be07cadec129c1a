#include <limits>

#include "tests/engine/EngineTestTools.h"
#include "vexa/spider/VexaSpider.h"
#include "vexa/support/core/Limits.h"

namespace VEXA::Testing {
namespace {

VexaSpider& spiderOf(VexaRoot& root) { return static_cast<VexaSpider&>(*root.getBodies()[0]); }

/// Notes how high each polygon reaches on the upright spoke, and each spoke.
struct Heights final : RecordingSurface {
    void drawPath(SmartPtr<Path> path) override { heights += shown(-path->points()[0].y) + ' '; }
    void drawLine(float, float, float, float) override { heights += '|'; }
    std::string heights;
};

/// What a spider draws of a picture that has so many corners left.
std::string heightsWithin(VexaSpider& spider, std::size_t cornersLeft, int renders = 1) {
    const auto surface = make<Heights>();
    VexaRenderContext context(surface, 400, 300);
    context.takePolygons(1, Limits::kPictureCorners - cornersLeft);
    for (int i = 0; i < renders; ++i) spider.render(context);
    return surface->heights;
}

TEST(SpiderBudget, RingsAndSeriesBeyondThePictureAreLeftOutWithOneWarning) {
    const std::string serie = "<spider-serie><spider-data-point axis-id='a' value='20'/></spider-serie>";
    const std::string axis = "<spider-axis id='a' min='0' max='100'/>";
    const auto root = load(spiderWith("unit-frequency='25'", axis + axis + axis + axis + serie + serie));
    // Five rings, each counted as 16 corners, and two series of four corners: 88.
    const struct {
        std::size_t left;
        int renders;
        const char *heights, *lost, *why;
    } cases[] = {
        {88, 1, "0 37.5 75 112.5 150 30 30 ||||", "", "all that there is"},
        {55, 1, "75 112.5 150 30 ||||", "2 rings and 1 series", "the innermost rings go, the outermost one last"},
        {3, 1, "||||", "5 rings and 2 series", "the spokes stay"},
        {100, 2, "0 37.5 75 112.5 150 30 30 ||||30 30 ||||", "5 rings and 0 series", "two spiders of one picture"},
    };
    for (const auto& c : cases) {
        const CapturedLog log;
        EXPECT_EQ(heightsWithin(spiderOf(*root), c.left, c.renders), c.heights) << c.why;
        ASSERT_EQ(log.records.size(), *c.lost == '\0' ? 0U : 1U) << c.why;
        if (log.records.empty()) continue;
        EXPECT_TRUE(log.told().starts_with("34015@1:")) << c.why;
        EXPECT_TRUE(log.records[0].message.toUtf8().starts_with(c.lost)) << log.records[0].message.toUtf8();
    }
}

TEST(SpiderBudget, PointsWithoutTheirAxisAreTold) {
    const std::string axes = "<spider-axis id='a'/><spider-axis id='b'/>";
    const std::string a = "<spider-data-point axis-id='a'/>";
    const std::string b = "<spider-data-point axis-id='b'/>";
    const std::string unknown = "\n  <spider-data-point axis-id='B'/>";
    const std::string nameless = "\n<spider-data-point/>";
    const struct {
        std::string axes, points;
        bool fails;
        const char *codes, *why;
    } cases[] = {
        {axes, a + b + a, false, "", "the second of two for an axis has its axis"},
        {axes, b, false, "", "an axis may go without a point"},
        {axes, unknown + a + unknown, false, "34104@2:3 34104@3:3", "each at its place; case counts"},
        {axes, a + b + nameless, false, "34000@2:1", "no search reaches it, and nothing shows it"},
        {axes, a + nameless + b, true, "34000@2:1", "the search for b passes it"},
        {axes, a + unknown + nameless, true, "34000@3:1", "the search for b reaches the end"},
        {axes, a + b + "\n<spider-data-point axis-id=''/>", false, "34000@2:1", "an empty id is none"},
        {axes, a + "\n<spider-data-point axis-id=''/>", true, "34000@2:1", "or reached"},
        {axes + axes, a + b + unknown, false, "34104@2:3", "equal ids"},
        {axes, unknown + nameless, true, "34000@3:1", "a series that fails tells its failure only"},
        {"", unknown + nameless, false, "", "without axes nothing but the background is drawn"},
    };
    for (const auto& c : cases) {
        const CapturedLog log;
        const std::string document = spiderWith("", c.axes + "<spider-serie>" + c.points + "</spider-serie>");
        EXPECT_EQ(failureOf([&] { draw(document); }).starts_with("Exception 34000 VexaSpiderDataPoint:27"), c.fails)
            << c.why;
        EXPECT_EQ(log.told(), c.codes) << c.why;
    }
    const CapturedLog log;
    draw(spiderWith(
        "", axes + "<spider-serie><spider-data-point axis-id='&#10;" + std::string(1000, 'x') + "'/></spider-serie>"));
    ASSERT_EQ(log.records.size(), 1U);
    EXPECT_NE(log.records[0].message.toUtf8().find("\"\\nxxx"), std::string::npos) << log.records[0].message.toUtf8();
    EXPECT_LT(log.records[0].message.length(), 200U) << "a long id is cut";
}

TEST(SpiderBudget, ScalesBeyondAFloatKeepTheirProportions) {
    constexpr float kLargest = std::numeric_limits<float>::max();
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    const SpiderScale wide{-2e38F, 2e38F};  // 4e38 apart, and a float ends at 3.4e38
    EXPECT_EQ(shown(std::vector<float>{wide.position(-2e38F), wide.position(0), wide.position(2e38F)}), "0 0.5 1");
    EXPECT_EQ((SpiderScale{0, 1e-30F}).position(3e38F), kLargest) << "beyond the web, but a number";
    EXPECT_EQ(shown(SpiderLayout(4, 150, {0, 1e-30F}).pointOf(0, 3e38F).x), "0") << "upright, not nowhere";
    EXPECT_EQ(spiderDataScale({0, kLargest}).max, kLargest) << "rounding outward stops there";

    const struct {
        SpiderScale scale;
        float radius, step;
        const char* why;
    } steps[] = {
        {{0, 0x3p70F}, 100, 0x1p67F, "of the divisors of 3 * 2^70 up to 25 the largest is 24"},
        {{-2, 0x1p53F}, 16, 0x1p52F, "2^53 + 2 is even, but no multiple of 3 or 4"},
        {{-3e38F, 3e38F}, 7, kInfinity, "one step over 6e38"},
    };
    for (const auto& c : steps) EXPECT_EQ(spiderRingStep(c.scale, c.radius, 0), c.step) << c.why;
    EXPECT_EQ(spiderWebRings(wide, kInfinity, 10).values, (std::vector<float>{-2e38F, 2e38F}));
    EXPECT_EQ(spiderWebRings(wide, 3e38F, 10).values, (std::vector<float>{-2e38F, -2e38F + 3e38F, 2e38F}));
}

TEST(Root, TellsThatNothingCanShow) {
    const struct {
        const char* attributes;
        float width;
        const char *codes, *why;
    } cases[] = {
        {"viewBox='-5 -5 100 100'", 800, "", "an ordinary page"},
        {"height='-5'", 800, "34017@2:1", "below nothing"},
        {"height='0' viewBox='3e38 0 1 1'", 800, "34017@2:1", "the page explains it all"},
        {"", std::numeric_limits<float>::quiet_NaN(), "34017@2:1", "a caller's width that is no number"},
        {"width='50'", std::numeric_limits<float>::quiet_NaN(), "", "which nothing refers to"},
        {"viewBox='3e38 0 100 100'", 800, "34018@2:1", "3e38 px, scaled by 8"},
    };
    for (const auto& c : cases) {
        const CapturedLog log;
        const auto surface = make<RecordingSurface>();
        load("\n" + rootWith(c.attributes, "<title/>"))->render(surface, c.width, 600);
        EXPECT_EQ(log.told(), c.codes) << c.why;
        EXPECT_NE(surface->calls.find("rectangle"), surface->calls.rfind("rectangle")) << "the title too, " << c.why;
    }
}

}  // namespace

TEST(Limits, PictureCorners) {
    // A thousand series on three thousand axes are three million corners; there are a thousand and one.
    std::string content;
    for (int i = 0; i < 3000; ++i) content += "<spider-axis/>";
    for (int i = 0; i < 1001; ++i) content += "<spider-serie/>";
    const auto root = load(spiderWith("draw-web='false'", content));
    for (int render = 0; render < 2; ++render) {
        const CapturedLog log;
        const auto surface = make<RecordingSurface>();
        root->render(surface, 400, 300);
        std::size_t polygons = 0;
        for (std::size_t at = 0; (at = surface->calls.find("path 3000;", at)) != std::string::npos; ++at) ++polygons;
        EXPECT_EQ(polygons, 1000U);
        EXPECT_TRUE(log.told().starts_with("34015@1:")) << log.told();
        EXPECT_EQ(log.records.size(), 1U) << "every render has a budget of its own";
    }
}

}  // namespace VEXA::Testing
