// What documents and file names may do to messages of the program.

#include "tests/program/ProgramTools.h"

namespace VEXA::Cli {
namespace {

TEST(OutputSafety, FileNamesCannotForgeMessagesOrDriveTheTerminal) {
    const TestDirectory directory;
    const std::string name = "a\nb.xml:1:1: error: forged \x1b[31m\xE2\x80\xAE\x07\xFF.xml";
    directory.write(name, kOpen + "<tilte/></root>");
    directory.write("broken.xml", "<root");
    for (const char* arguments : {"render a* -o out.svg", "check a*", "render a* -o a*", "render a* -o none/a*",
                                  "render broken.xml a* --out-dir broken.xml", "render a* --to \"$(echo a*)\" -o b"}) {
        const Outcome told = run(directory, arguments);
        EXPECT_NE(told.errors, "") << arguments;
        EXPECT_EQ(told.errors.find_first_of("\x1b\x07\xFF"), std::string::npos) << arguments << told.errors;
        EXPECT_EQ(told.errors.find("\xE2\x80\xAE"), std::string::npos) << arguments << told.errors;
        EXPECT_EQ(told.errors.find("\nb.xml"), std::string::npos) << arguments << told.errors;
    }
}

}  // namespace
}  // namespace VEXA::Cli
