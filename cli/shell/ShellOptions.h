#pragma once

#include <string>

namespace VEXA::Cli {

/// What was typed behind `vexa completion`.
struct CompletionOptions {
    std::string shell;
};

/// `vexa man` takes nothing.
struct ManOptions {};

}  // namespace VEXA::Cli
