#pragma once

#include <CLI/App.hpp>

#include "cli/FontsOptions.h"
#include "cli/RenderOptions.h"

namespace VEXA::Cli {

/// Each gives a command its options and its help; what is typed goes to `options`.
void addRenderOptions(CLI::App& command, RenderOptions& options);
void addFontsOptions(CLI::App& command, FontsOptions& options);

}  // namespace VEXA::Cli
