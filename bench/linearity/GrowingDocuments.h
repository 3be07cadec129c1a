#pragma once

#include <span>
#include <string>

namespace VEXA::Bench {

/// A way in which documents grow.
struct Dimension {
    const char* name;
    int size;  ///< where the growing part outweighs the rest
    std::string (*document)(int size);
};

std::span<const Dimension> dimensions();

}  // namespace VEXA::Bench
