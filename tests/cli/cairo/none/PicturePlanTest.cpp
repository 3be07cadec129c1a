#include "cli/RenderPlan.h"

#include <gtest/gtest.h>

namespace VEXA::Cli {
namespace {

TEST(PicturePlan, SaysThatTheBuildHasNoPngAndPdf) {
    const RenderOptions cases[] = {
        {{"a.xml"}, "a.png", "", "", 0, "2"},
        {{"a.xml"}, "", "out", "png", 0},
        {{"a.xml", "b.xml"}, "all.png", "", "", 0},
    };
    for (const RenderOptions& options : cases) {
        EXPECT_EQ(planRender(options).problem,
                  "cannot write \"png\": this vexa was built without PNG and PDF; the formats are svg, json");
    }
    EXPECT_EQ(
        planRender({{"a.xml", "b.xml"}, "all.PDF", "", "", 0}).problem.rfind("cannot write \"PDF\": this vexa", 0), 0U);
}

}  // namespace
}  // namespace VEXA::Cli
