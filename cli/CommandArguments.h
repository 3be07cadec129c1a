#pragma once

#include <CLI/App.hpp>

#include "cli/FontsOptions.h"
#include "cli/RenderOptions.h"
#include "cli/SchemaOptions.h"
#include "cli/check/CheckOptions.h"
#include "cli/shell/ShellOptions.h"

namespace VEXA::Cli {

/// The most documents that may be worked on at once.
inline constexpr unsigned kMaxJobs = 1024;

/// Each gives a command its options and its help; what is typed goes to `options`.
void addRenderOptions(CLI::App& command, RenderOptions& options);
void addFontsOptions(CLI::App& command, FontsOptions& options);
void addCheckOptions(CLI::App& command, CheckOptions& options);
void addSchemaOptions(CLI::App& command, SchemaOptions& options);
void addCompletionOptions(CLI::App& command, CompletionOptions& options);
void addManOptions(CLI::App& command, ManOptions& options);

}  // namespace VEXA::Cli
