#include "tests/program/ProgramTools.h"

namespace VEXA::Cli {
namespace {

TEST(Pictures, AreToldToBeMissingFromTheBuild) {
    const TestDirectory directory;
    directory.write("chart.xml", kOpen + "</root>");
    for (const char* output : {"-o chart.png", "-o - --to pdf", "chart.xml -o chart.pdf"}) {
        const Outcome told = run(directory, "render chart.xml " + std::string(output));
        EXPECT_EQ(told.status, 2) << output;
        EXPECT_NE(told.errors.find("this vexa was built without PNG and PDF; the formats are svg, json\n"),
                  std::string::npos)
            << told.errors;
    }
}

}  // namespace
}  // namespace VEXA::Cli
