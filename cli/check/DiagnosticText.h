#pragma once

#include <string>

#include "vexa/support/core/Log.h"

namespace VEXA::Cli {

/// A problem of a file as a JSON object with a line feed: file, line, column, severity, number and message, in this
/// order; without line and column when it has no place.
std::string jsonLine(const std::string& file, const LogRecord& problem);

}  // namespace VEXA::Cli
