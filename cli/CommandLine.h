#pragma once

#include <optional>
#include <string>

#include "cli/ExitStatus.h"
#include "cli/RenderOptions.h"

namespace VEXA::Cli {

/// What was typed: a command to carry out, or a text to show and a status to end with.
struct CommandLine {
    std::optional<RenderOptions> render;
    std::string text;           ///< help, version, or what is wrong
    ExitStatus status = kDone;  ///< of a text: kDone for what was asked for, kWrongUsage for what is wrong
};

/// Reads the arguments of the program, its own name first. Never throws for what a user types.
CommandLine parseCommandLine(int count, const char* const* arguments);

}  // namespace VEXA::Cli
