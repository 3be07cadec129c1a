#pragma once

#include <string>
#include <vector>

namespace VEXA::Cli {

/// `vexa check` as it was typed.
struct CheckOptions {
    std::vector<std::string> inputs;  ///< files, or "-" for standard input
    bool isStrict = false;
    std::string diagnostics = "text";
    unsigned jobs = 0;  ///< documents checked at once; 0 for one a core
    std::vector<std::string> fontDirectories;
};

}  // namespace VEXA::Cli
