#pragma once

#include <string>
#include <vector>

namespace VEXA::Cli {

/// `vexa fonts` as it was typed.
struct FontsOptions {
    std::string family = "sans-serif";  ///< names separated by commas
    bool isBold = false;
    bool isItalic = false;
    std::string size = "12";  ///< px
    std::vector<std::string> directories;
    std::vector<std::string> texts;
};

}  // namespace VEXA::Cli
