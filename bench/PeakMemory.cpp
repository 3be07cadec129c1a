#include "bench/PeakMemory.h"

#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>

namespace VEXA::Bench {
namespace {

std::atomic<std::size_t> live{0};
std::atomic<std::size_t> peak{0};

void* counted(void* memory) {
    if (memory == nullptr) throw std::bad_alloc();
    const std::size_t now = live.fetch_add(malloc_usable_size(memory), std::memory_order_relaxed);
    const std::size_t reached = now + malloc_usable_size(memory);
    if (reached > peak.load(std::memory_order_relaxed)) peak.store(reached, std::memory_order_relaxed);
    return memory;
}

void release(void* memory) noexcept {
    if (memory != nullptr) live.fetch_sub(malloc_usable_size(memory), std::memory_order_relaxed);
    std::free(memory);
}

}  // namespace

PeakMemory::PeakMemory() noexcept : before_(live.load()) { peak.store(before_); }

std::size_t PeakMemory::bytes() const noexcept { return peak.load() - before_; }

}  // namespace VEXA::Bench

// What the program allocates is counted here; the C libraries' own allocations are not.
void* operator new(std::size_t size) { return VEXA::Bench::counted(std::malloc(std::max<std::size_t>(size, 1))); }
void* operator new(std::size_t size, std::align_val_t alignment) {
    return VEXA::Bench::counted(std::aligned_alloc(static_cast<std::size_t>(alignment), size));
}
void operator delete(void* memory, std::align_val_t) noexcept { VEXA::Bench::release(memory); }
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept { VEXA::Bench::release(memory); }
void operator delete(void* memory) noexcept { VEXA::Bench::release(memory); }
void operator delete(void* memory, std::size_t) noexcept { VEXA::Bench::release(memory); }
