#pragma once

#include <cstddef>

namespace VEXA::Bench {

/// The most bytes that were allocated at one time since the object was made, those before it not counted. One at a
/// time, and one thread.
class PeakMemory {
public:
    PeakMemory() noexcept;
    std::size_t bytes() const noexcept;

private:
    std::size_t before_;
};

}  // namespace VEXA::Bench
