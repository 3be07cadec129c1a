#include "cli/Program.h"

#include <exception>
#include <string>

#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/FontsCommand.h"
#include "cli/Interruption.h"
#include "cli/Messages.h"
#include "cli/RenderCommand.h"
#include "cli/SchemaCommand.h"
#include "cli/check/CheckCommand.h"
#include "cli/shell/Completion.h"
#include "cli/shell/ManPage.h"

namespace VEXA::Cli {
namespace {

/// What was asked for goes to standard output, what is wrong to standard error.
ExitStatus show(const Answer& answer, Console& console) {
    if (answer.status == kDone) {
        IO::FileStream::standardOutput()->write(answer.text.data(), answer.text.size());
    } else {
        console.write(answer.text);
    }
    return answer.status;
}

}  // namespace

int runProgram(int count, const char* const* arguments, const Painter& paint) {
    StandardError console;
    handleSignals();
    try {
        const CommandLine line = parseCommandLine(count, arguments);
        if (line.render) return render(*line.render, paint, console);
        if (line.check) return check(*line.check, *IO::FileStream::standardOutput(), console);
        if (line.fonts) return show(listFonts(*line.fonts), console);
        if (line.completion) return show(completeFor(*line.completion), console);
        if (line.man) return show({makeManPage(makeOptionTable())}, console);
        if (line.schema) return show(describeDocuments(*line.schema), console);
        return show(line.answer, console);
    } catch (const std::exception& error) {  // fonts that are not there, output that cannot be written, no memory
        console.write("vexa: error: " + printable(error.what()) + "\n");
        return kFailed;
    }
}

}  // namespace VEXA::Cli
