#include "cli/SchemaCommand.h"

#include <gtest/gtest.h>

#include <tuple>

namespace VEXA::Cli {
namespace {

TEST(SchemaCommand, PrintsTheFormatThatIsAskedFor) {
    const std::tuple<const char*, ExitStatus, const char*, const char*> cases[] = {
        {"xsd", kDone, "<?xml ", "<xs:element name=\"root\""},
        {"markdown", kDone, "", "\n# Reference"},
        {"", kWrongUsage, "vexa schema: ", "xsd or markdown"},
        {"\x1b[31m", kWrongUsage, "vexa schema: the format \"\\", "xsd or markdown"},
    };
    for (const auto& [format, status, start, part] : cases) {
        const Answer answer = describeDocuments({format});
        EXPECT_EQ(answer.status, status) << format;
        EXPECT_TRUE(answer.text.starts_with(start)) << format;
        EXPECT_NE(answer.text.find(part), std::string::npos) << format;
        EXPECT_TRUE(answer.text.ends_with('\n')) << format;
    }
}

}  // namespace
}  // namespace VEXA::Cli
