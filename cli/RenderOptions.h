#pragma once

#include <optional>
#include <string>
#include <vector>

namespace VEXA::Cli {

/// The name that stands for a standard stream.
inline constexpr const char* kStandardStream = "-";

/// `vexa render` as it was typed. What was not given is empty.
struct RenderOptions {
    std::vector<std::string> inputs;  ///< files, or "-" for standard input
    std::string output;               ///< a file, or "-" for standard output
    std::string outputDirectory;
    std::string format;
    unsigned jobs = 0;  ///< documents drawn at once; 0 for one a core
    std::optional<std::string> scale = std::nullopt;
    std::optional<std::string> dpi = std::nullopt;
    std::optional<std::string> background = std::nullopt;
    std::vector<std::string> fontDirectories = {};
    bool isStrict = false;
    bool isWatching = false;
};

}  // namespace VEXA::Cli
