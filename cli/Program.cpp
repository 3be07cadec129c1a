#include "cli/Program.h"

#include <exception>
#include <string>

#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/RenderCommand.h"

namespace VEXA::Cli {
namespace {

/// What was asked for goes to standard output, what is wrong to standard error.
ExitStatus showText(const CommandLine& line, Console& console) {
    if (line.status == kDone) {
        IO::FileStream::standardOutput()->write(line.text.data(), line.text.size());
    } else {
        console.write(line.text);
    }
    return line.status;
}

}  // namespace

int runProgram(int count, const char* const* arguments, const Painter& paint) {
    StandardError console;
    try {
        const CommandLine line = parseCommandLine(count, arguments);
        return line.render ? render(*line.render, paint, console) : showText(line, console);
    } catch (const std::exception& error) {  // output that cannot be written, memory that ends
        console.write(std::string("vexa: error: ") + error.what() + "\n");
        return kFailed;
    }
}

}  // namespace VEXA::Cli
