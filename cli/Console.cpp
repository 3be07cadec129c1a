#include "cli/Console.h"

#include <unistd.h>

#include <cstdio>

namespace VEXA::Cli {

void StandardError::write(std::string_view text) { std::fwrite(text.data(), 1, text.size(), stderr); }

bool StandardError::isTerminal() const { return ::isatty(STDERR_FILENO) == 1; }

}  // namespace VEXA::Cli
