#include <tuple>

#include "cli/RenderPlan.h"
#include "tests/cli/CliTestTools.h"
#include "vexa/support/values/ValueTraits.h"

namespace VEXA::Cli {
namespace {

TEST(PicturePlan, ReadsScaleResolutionAndBackground) {
    const std::tuple<RenderOptions, PictureOptions, const char*> cases[] = {
        {{{"a.xml"}, "a.png", "", "", 0}, {1, 0, {}}, "a pixel to the px, no resolution told, nothing below"},
        {{{"a.xml"}, "", "out", "PNG", 0, "2.5"}, {2.5F, 0, {}}, "a scale alone tells no resolution"},
        {{{"a.xml"}, "a.png", "", "", 0, {}, "300"}, {3.125F, 300, {}}, "300 pixels for the 96 px of an inch"},
        {{{"a.xml"}, "a.png", "", "", 0, "2", "300"}, {2, 300, {}}, "told only; the scale is what is said"},
        {{{"a.xml"}, "a.pdf", "", "", 0, {}, {}, "white"}, {1, 0, make<RGBColor>(255, 255, 255)}, "a name"},
        {{{"a.xml"}, "a.png", "", "", 0, {}, {}, "#1ab"}, {1, 0, make<RGBColor>(17, 170, 187)}, "three digits"},
    };
    for (const auto& [options, expected, why] : cases) {
        const RenderPlan plan = planRender(options);
        ASSERT_EQ(plan.problem, "") << why;
        const PictureOptions& picture = plan.jobs.back().picture;
        EXPECT_EQ(picture.scale, expected.scale) << why;
        EXPECT_EQ(picture.dpi, expected.dpi) << why;
        EXPECT_TRUE(equalValues(picture.background, expected.background)) << why;
    }
}

TEST(PicturePlan, RefusesValuesThatAreNone) {
    const auto isNot = [](const char* option, const std::string& text, const char* wanted) {
        return std::string(option) + " \"" + text + "\" is not " + wanted;
    };
    for (const char* text : {"", "0", "-1", "2x", " 2", "1,5", "inf", "nan", "1e99", "1e-60"})
        expectProblem({{"a.xml"}, "a.png", "", "", 0, text}, isNot("--scale", text, "a number above 0"));
    for (const char* text : {"", "0", "0.9", "100001", "nan", "300dpi"})
        expectProblem({{"a.xml"}, "a.png", "", "", 0, {}, text}, isNot("--dpi", text, "a number from 1 to 100000"));
    for (const char* text : {"", "blu", "#12", "none", "url(#a)"})
        expectProblem({{"a.xml"}, "a.pdf", "", "", 0, {}, {}, text}, isNot("--background", text, "a colour"));
}

TEST(PicturePlan, JoinsSeveralDocumentsInOnePdfAlone) {
    const std::tuple<RenderOptions, bool, const char*> cases[] = {
        {{{"b.xml", "a.xml"}, "all.pdf", "", "", 0}, true, "as said"},
        {{{"b.xml", "-"}, "-", "", "pdf", 0}, true, "standard streams too"},
        {{{"a.xml", "a.xml"}, "all.pdf", "", "", 0}, true, "a page may stand twice"},
        {{{"a.xml"}, "all.pdf", "", "", 0}, false, "a single page is a document like others"},
        {{{"b.xml", "a.xml"}, "", "out", "pdf", 0}, false, "a directory takes a file of each"},
    };
    for (const auto& [options, isJoined, why] : cases) {
        const RenderPlan plan = planRender(options);
        ASSERT_EQ(plan.problem, "") << why;
        EXPECT_EQ(plan.isJoined, isJoined) << why;
        ASSERT_EQ(plan.jobs.size(), options.inputs.size()) << why;
        for (std::size_t i = 0; i < plan.jobs.size(); ++i) EXPECT_EQ(plan.jobs[i].input, options.inputs[i]) << why;
    }
    const TestDirectory directory;
    const std::string page = directory.write("b.pdf", "<root/>");
    expectProblem({{"a.xml"}, "a.pdf", "", "", 0, "2"}, "--scale is for png, and the format here is pdf");
    expectProblem({{"a.xml", "b.xml"}, "a.png", "", "", 0}, "or a PDF, which has pages");
    expectProblem({{"a.xml", page}, directory.path("./b.pdf"), "", "", 0}, "would replace the document");
}

}  // namespace
}  // namespace VEXA::Cli
