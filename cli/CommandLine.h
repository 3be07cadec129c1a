#pragma once

#include <optional>

#include "cli/ExitStatus.h"
#include "cli/FontsOptions.h"
#include "cli/RenderOptions.h"
#include "cli/SchemaOptions.h"
#include "cli/check/CheckOptions.h"
#include "cli/shell/ShellOptions.h"

namespace VEXA::Cli {

/// What was typed: a command to carry out, or else the answer to a wish for help or to a mistake.
struct CommandLine {
    std::optional<RenderOptions> render;
    std::optional<FontsOptions> fonts;
    std::optional<CheckOptions> check;
    std::optional<SchemaOptions> schema;
    std::optional<CompletionOptions> completion;
    std::optional<ManOptions> man;
    Answer answer;
};

/// Reads the arguments of the program, its own name first. Never throws for what a user types.
CommandLine parseCommandLine(int count, const char* const* arguments);

}  // namespace VEXA::Cli
