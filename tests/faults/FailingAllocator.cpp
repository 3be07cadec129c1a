#include "tests/faults/FailingAllocator.h"

#include <expat.h>
#include <malloc.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace VEXA::Testing {
namespace {

std::atomic<std::int64_t> live{0};
std::atomic<std::int64_t> inUse{0};       // bytes
std::atomic<std::int64_t> peak{0};        // of inUse
thread_local std::int64_t countdown = 0;  // allocations up to the failing one; 0 or less when none is to fail
thread_local bool failed = false;

bool fails() noexcept {
    if (countdown <= 0 || --countdown != 0) return false;
    failed = true;
    return true;
}

/// Notes what a block takes, or gives back.
void count(std::int64_t bytes) noexcept {
    const std::int64_t now = inUse.fetch_add(bytes, std::memory_order_relaxed) + bytes;
    if (now > peak.load(std::memory_order_relaxed)) peak.store(now, std::memory_order_relaxed);
}

std::int64_t sizeOf(void* block) noexcept { return static_cast<std::int64_t>(::malloc_usable_size(block)); }

void* allocate(std::size_t size, std::size_t alignment) noexcept {
    if (fails()) return nullptr;
    void* const block = alignment > alignof(std::max_align_t)
                            ? std::aligned_alloc(alignment, (size + alignment - 1) / alignment * alignment)
                            : std::malloc(size == 0 ? 1 : size);
    if (block == nullptr) return nullptr;
    live.fetch_add(1, std::memory_order_relaxed);
    count(sizeOf(block));
    return block;
}

void* reallocate(void* block, std::size_t size) noexcept {
    if (block == nullptr) return allocate(size, 0);
    if (fails()) return nullptr;
    const std::int64_t before = sizeOf(block);
    void* const moved = std::realloc(block, size);
    if (moved != nullptr) count(sizeOf(moved) - before);
    return moved;
}

void release(void* block) noexcept {
    if (block == nullptr) return;
    live.fetch_sub(1, std::memory_order_relaxed);
    count(-sizeOf(block));
    std::free(block);
}

void* allocateOrThrow(std::size_t size, std::size_t alignment) {
    void* const block = allocate(size, alignment);
    if (block == nullptr) throw std::bad_alloc();
    return block;
}

}  // namespace

std::int64_t liveBlocks() noexcept { return live.load(); }

PeakMemory::PeakMemory() noexcept : before_(inUse.load()) { peak = before_; }
std::size_t PeakMemory::bytes() const noexcept { return static_cast<std::size_t>(peak.load() - before_); }

FailAllocation::FailAllocation(std::int64_t number) noexcept {
    failed = false;
    countdown = number;
}
FailAllocation::~FailAllocation() { countdown = 0; }
bool FailAllocation::hasFailed() const noexcept { return failed; }

}  // namespace VEXA::Testing

using VEXA::Testing::allocate;
using VEXA::Testing::allocateOrThrow;
using VEXA::Testing::release;

void* operator new(std::size_t size) { return allocateOrThrow(size, 0); }
void* operator new[](std::size_t size) { return allocateOrThrow(size, 0); }
void* operator new(std::size_t size, std::align_val_t alignment) {
    return allocateOrThrow(size, static_cast<std::size_t>(alignment));
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
    return allocateOrThrow(size, static_cast<std::size_t>(alignment));
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return allocate(size, 0); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return allocate(size, 0); }
void operator delete(void* block) noexcept { release(block); }
void operator delete[](void* block) noexcept { release(block); }
void operator delete(void* block, std::size_t) noexcept { release(block); }
void operator delete[](void* block, std::size_t) noexcept { release(block); }
void operator delete(void* block, std::align_val_t) noexcept { release(block); }
void operator delete[](void* block, std::align_val_t) noexcept { release(block); }
void operator delete(void* block, std::size_t, std::align_val_t) noexcept { release(block); }
void operator delete[](void* block, std::size_t, std::align_val_t) noexcept { release(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { release(block); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { release(block); }

/// The linker sends the library's call here (--wrap).
extern "C" XML_Parser __wrap_XML_ParserCreateNS(const XML_Char* encoding, XML_Char separator) {
    static const XML_Memory_Handling_Suite memory = {[](std::size_t size) { return allocate(size, 0); },
                                                     &VEXA::Testing::reallocate, &release};
    const XML_Char separators[] = {separator, 0};
    return XML_ParserCreate_MM(encoding, &memory, separators);
}
