#pragma once

#include <CLI/App.hpp>

#include "cli/FontsOptions.h"
#include "cli/RenderOptions.h"
#include "cli/SchemaOptions.h"

namespace VEXA::Cli {

/// Each gives a command its options and its help; what is typed goes to `options`.
void addRenderOptions(CLI::App& command, RenderOptions& options);
void addFontsOptions(CLI::App& command, FontsOptions& options);
void addSchemaOptions(CLI::App& command, SchemaOptions& options);

}  // namespace VEXA::Cli
