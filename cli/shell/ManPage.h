#pragma once

#include <string>

#include "cli/shell/OptionTable.h"

namespace VEXA::Cli {

/// The manual page of the program, section 1, in the language of man(7).
std::string makeManPage(const OptionTable& table);

}  // namespace VEXA::Cli
