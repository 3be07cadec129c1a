#pragma once

#include <cstddef>
#include <cstdint>

/// This program's allocator: every operator new, and the memory of expat.
namespace VEXA::Testing {

/// How many blocks are allocated and not yet freed.
std::int64_t liveBlocks() noexcept;

/// The most bytes that are in use at once while it lives, above those of its start; of one object at a time, all
/// threads together.
class PeakMemory {
public:
    PeakMemory() noexcept;
    std::size_t bytes() const noexcept;

private:
    std::int64_t before_;
};

/// While it lives, the allocations of this thread are counted, and the one of that number fails, from 1.
class FailAllocation {
public:
    explicit FailAllocation(std::int64_t number) noexcept;
    ~FailAllocation();
    FailAllocation(const FailAllocation&) = delete;
    FailAllocation& operator=(const FailAllocation&) = delete;

    /// Whether that allocation was asked for.
    bool hasFailed() const noexcept;
};

}  // namespace VEXA::Testing
