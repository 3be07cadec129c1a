#include "tests/program/ProgramTools.h"

namespace VEXA::Cli {
namespace {

TEST(Fonts, AreToldToBeMissingFromTheBuild) {
    const TestDirectory directory;
    directory.write("chart.xml", kOpen + "</root>");
    for (const char* arguments : {"fonts", "fonts Total", "render chart.xml -o chart.svg --font-dir ."}) {
        const Outcome told = run(directory, arguments);
        EXPECT_EQ(told.status, 2) << arguments;
        EXPECT_NE(told.errors.find("built without fonts"), std::string::npos) << told.errors;
    }
    EXPECT_FALSE(directory.has("chart.svg"));
}

}  // namespace
}  // namespace VEXA::Cli
