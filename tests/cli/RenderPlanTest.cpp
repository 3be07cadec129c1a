#include "cli/RenderPlan.h"

#include <tuple>

#include "tests/cli/CliTestTools.h"

namespace VEXA::Cli {
namespace {

TEST(RenderPlan, ChoosesTheOutputAndItsFormat) {
    const std::tuple<RenderOptions, std::string, OutputFormat, const char*> cases[] = {
        // output of the last job
        {{{"a.xml"}, "a.svg", "", "", 0}, "a.svg", OutputFormat::Svg, "the name tells the format"},
        {{{"a.xml"}, "A.JSON", "", "", 0}, "A.JSON", OutputFormat::Json, "whatever its case"},
        {{{"a.xml"}, "a.svg", "", "Json", 0}, "a.svg", OutputFormat::Json, "what is said, in any case, beats the name"},
        {{{"a.xml"}, "a.b/c", "", "svg", 0}, "a.b/c", OutputFormat::Svg, "a name without extension is enough then"},
        {{{"-"}, "-", "", "", 0}, "-", OutputFormat::Svg, "a standard stream has no name: a picture"},
        {{{"x/a.xml"}, "", "out", "json", 0}, "out/a.json", OutputFormat::Json, "the stem, not the directory"},
        {{{"a.xml", "x/b.2.xml"}, "", "out/", "", 0}, "out/b.2.svg", OutputFormat::Svg, "only the last extension goes"},
        {{{".xml"}, "", "out", "", 0}, "out/.xml.svg", OutputFormat::Svg, "a hidden file's name is its stem"},
    };
    for (const auto& [options, output, format, why] : cases) {
        const RenderPlan plan = planRender(options);
        ASSERT_EQ(plan.problem, "") << why;
        ASSERT_EQ(plan.jobs.size(), options.inputs.size()) << why;
        EXPECT_EQ(plan.jobs.back().output, output) << why;
        EXPECT_EQ(plan.jobs.back().format, format) << why;
    }
}

TEST(RenderPlan, RefusesWhatCannotBeCarriedOut) {
    const std::pair<RenderOptions, const char*> cases[] = {
        {{{}, "a.svg", "", "", 0}, "no document"},
        {{{"a.xml"}, "", "", "", 0}, "nowhere to draw to"},
        {{{"a.xml"}, "a.svg", "out", "", 0}, "exclude each other"},
        {{{"a.xml", "b.xml"}, "a.svg", "", "", 0}, "a file of svg holds one document"},
        {{{"a.xml", "-"}, "", "out", "", 0}, "standard input"},
        {{{"a.xml"}, "a.gif", "", "", 0}, "cannot write \"gif\"; the formats are svg, json"},
        {{{"a.xml"}, "a.svg", "", "", 0, "2"}, "--scale is for png, and the format here is svg"},
        {{{"a.xml"}, "a", "", "json", 0, {}, "300"}, "--dpi is for png, and the format here is json"},
        {{{"a.xml"}, "a.svg", "", "", 0, {}, {}, "red"}, "--background is for png and pdf"},
        {{{"a.xml"}, "picture", "", "", 0}, "tells no format"},
        {{{"x/a", "y/a"}, "", "o", "", 0}, R"("x/a" and "y/a" would both be drawn to "o/a.svg")"},
    };
    for (const auto& [options, part] : cases) expectProblem(options, part);
}

TEST(RenderPlan, NeverReplacesADocumentThatIsRead) {
    const TestDirectory directory;
    const std::string chart = directory.write("chart.svg", "<root/>");
    const std::string other = directory.write("other.xml", "<root/>");
    std::filesystem::create_symlink("chart.svg", directory.path("link.svg"));
    std::filesystem::create_hard_link(chart, directory.path("hard.svg"));
    const RenderOptions cases[] = {
        {{chart}, directory.path("./chart.svg"), "", "", 0},  // the same file by another path
        {{chart}, directory.path("link.svg"), "", "", 0},     // by a link
        {{chart}, directory.path("hard.svg"), "", "", 0},     // by a second name
        {{other, chart}, "", directory.path(""), "svg", 0},   // by the name that is made for it
        {{directory.path("link.svg")}, chart, "", "", 0},     // read by a link
    };
    for (const RenderOptions& options : cases) expectProblem(options, "would replace the document");
    EXPECT_EQ(planRender({{chart}, directory.path("new.svg"), "", "", 0}).problem, "") << "a new file replaces nothing";
    EXPECT_EQ(planRender({{"/dev/null"}, "/dev/null", "", "svg", 0}).problem, "") << "a device keeps nothing";
}

}  // namespace
}  // namespace VEXA::Cli
