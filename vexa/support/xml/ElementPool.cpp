#include "vexa/support/xml/ElementPool.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <new>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/asan_interface.h>
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#include <sanitizer/asan_interface.h>
#endif
#endif
#ifndef ASAN_POISON_MEMORY_REGION
#define ASAN_POISON_MEMORY_REGION(address, size) (static_cast<void>(address), static_cast<void>(size))
#define ASAN_UNPOISON_MEMORY_REGION(address, size) (static_cast<void>(address), static_cast<void>(size))
#endif

namespace VEXA {
namespace {

// Chunks are aligned to their size, so the chunk of a piece is found by clearing the low bits of its address.
constexpr std::size_t kChunkSize = 32 * 1024;

// More than a chunk can hold: the open chunk owes this many pieces until the pool leaves it, so that handing out
// needs no atomic operation.
constexpr std::uint32_t kOpen = 1U << 30;

/// A few free chunks for each thread: small documents then cost no call to the system.
struct SpareChunks {
    std::array<void*, 4> chunks{};
    std::size_t count = 0;

    ~SpareChunks() {
        while (count > 0) free(chunks[--count]);
    }
    void* take() { return count > 0 ? chunks[--count] : ::operator new(kChunkSize, std::align_val_t(kChunkSize)); }
    void give(void* chunk) noexcept {
        if (count < chunks.size()) {
            chunks[count++] = chunk;
        } else {
            free(chunk);
        }
    }
    static void free(void* chunk) noexcept {
        ASAN_UNPOISON_MEMORY_REGION(chunk, kChunkSize);
        ::operator delete(chunk, std::align_val_t(kChunkSize));
    }
};

thread_local SpareChunks spareChunks;
thread_local ElementPool* currentPool = nullptr;

constexpr std::size_t roundUp(std::size_t size) noexcept { return (size + 7) & ~std::size_t{7}; }

}  // namespace

struct ElementPool::Chunk {
    std::atomic<std::uint32_t> owed;

    static Chunk* of(void* memory) noexcept {
        return reinterpret_cast<Chunk*>(reinterpret_cast<std::uintptr_t>(memory) & ~(kChunkSize - 1));
    }
    void settle(std::uint32_t pieces) noexcept {
        if (owed.fetch_sub(pieces, std::memory_order_acq_rel) == pieces) spareChunks.give(this);
    }
};

ElementPool::~ElementPool() { leaveChunk(); }

void ElementPool::leaveChunk() noexcept {
    if (chunk_ != nullptr) chunk_->settle(kOpen - static_cast<std::uint32_t>(handedOut_));
    chunk_ = nullptr;
}

void ElementPool::openChunk() {
    leaveChunk();
    void* const memory = spareChunks.take();
    ASAN_UNPOISON_MEMORY_REGION(memory, sizeof(Chunk));
    chunk_ = new (memory) Chunk{{kOpen}};
    used_ = roundUp(sizeof(Chunk));
    handedOut_ = 0;
    ASAN_POISON_MEMORY_REGION(static_cast<char*>(memory) + used_, kChunkSize - used_);
}

void* ElementPool::allocate(std::size_t size) {
    const std::size_t rounded = roundUp(size);
    if (chunk_ == nullptr || used_ + rounded > kChunkSize) openChunk();
    last_ = reinterpret_cast<char*>(chunk_) + used_;
    used_ += rounded;
    ++handedOut_;
    lastSize_ = size;
    ASAN_UNPOISON_MEMORY_REGION(last_, size);
    return last_;
}

void ElementPool::release(void* memory, std::size_t size) noexcept {
    ASAN_POISON_MEMORY_REGION(memory, size);
    static_cast<void>(size);
    Chunk::of(memory)->settle(1);
}

ElementPool* ElementPool::current() noexcept { return currentPool; }

void* ElementPool::allocateCurrent(std::size_t size, bool& pooled) {
    pooled = currentPool != nullptr && size <= kMaxSize;
    return pooled ? currentPool->allocate(size) : ::operator new(size);
}

std::size_t ElementPool::sizeIfLast(const void* memory) noexcept {
    return currentPool != nullptr && currentPool->last_ == memory ? currentPool->lastSize_ : 0;
}

ElementPool::Scope::Scope(ElementPool& pool) noexcept : previous_(currentPool) { currentPool = &pool; }
ElementPool::Scope::~Scope() { currentPool = previous_; }

}  // namespace VEXA
