#pragma once

namespace VEXA::Cli {

/// What the program tells its caller.
enum ExitStatus : int {
    kDone = 0,
    kFailed = 1,      ///< a document could not be drawn; the others were
    kWrongUsage = 2,  ///< nothing was done
};

}  // namespace VEXA::Cli
