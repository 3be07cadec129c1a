#pragma once

#include <string>

#include "cli/ExitStatus.h"
#include "cli/shell/OptionTable.h"
#include "cli/shell/ShellOptions.h"

namespace VEXA::Cli {

/// What each shell reads to complete commands, options, the words that are values, documents and directories.
std::string makeBashCompletion(const OptionTable& table);
std::string makeZshCompletion(const OptionTable& table);
std::string makeFishCompletion(const OptionTable& table);

/// `vexa completion`.
Answer completeFor(const CompletionOptions& options);

}  // namespace VEXA::Cli
