#pragma once

#include <cstddef>

namespace VEXA {

/// Memory of one document's objects and values: taken from chunks in order of creation, given back a chunk at a time.
/// A chunk lives until the parser has left it and the last thing in it is gone, so an object may outlive its tree.
/// Filling is for one thread at a time; giving back may come from any.
class ElementPool {
public:
    ElementPool() noexcept = default;
    ~ElementPool();
    ElementPool(const ElementPool&) = delete;
    ElementPool& operator=(const ElementPool&) = delete;

    /// Aligned to 8 bytes. REQUIRES: size <= kMaxSize.
    void* allocate(std::size_t size);
    /// Gives back what `allocate` of any pool handed out.
    static void release(void* memory, std::size_t size) noexcept;

    static constexpr std::size_t kMaxSize = 4096;

    /// The pool that objects made on this thread come from; none means the heap.
    static ElementPool* current() noexcept;

    /// Memory from the current pool or the heap; `pooled` tells which.
    static void* allocateCurrent(std::size_t size, bool& pooled);

    /// The size of the last piece that the current pool handed out, when `memory` is that piece; else 0. Tells an
    /// object under construction whether its memory is a pool's.
    static std::size_t sizeIfLast(const void* memory) noexcept;

    /// Makes a pool the current one of this thread while the scope lives.
    class Scope {
    public:
        explicit Scope(ElementPool& pool) noexcept;
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        ElementPool* previous_;
    };

private:
    struct Chunk;
    void leaveChunk() noexcept;
    void openChunk();

    Chunk* chunk_ = nullptr;
    std::size_t used_ = 0;
    std::size_t handedOut_ = 0;  // from the open chunk
    void* last_ = nullptr;
    std::size_t lastSize_ = 0;
};

}  // namespace VEXA
