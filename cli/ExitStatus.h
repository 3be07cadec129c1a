#pragma once

#include <string>

namespace VEXA::Cli {

/// What the program tells its caller.
enum ExitStatus : int {
    kDone = 0,
    kFailed = 1,      ///< a document could not be drawn; the others were
    kWrongUsage = 2,  ///< nothing was done
};

/// A text to show and a status to end with.
struct Answer {
    std::string text;           ///< help, version, a listing, or what is wrong
    ExitStatus status = kDone;  ///< kDone for what was asked for
};

}  // namespace VEXA::Cli
