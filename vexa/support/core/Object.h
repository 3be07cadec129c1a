#pragma once

#include <atomic>
#include <cstdint>
#include <utility>

namespace VEXA {

/// Base of everything that is shared. The count starts at 0; a SmartPtr takes the first reference. Counting is atomic,
/// so an object may be shared between threads; what it holds is not protected by that.
class Object {
public:
    constexpr Object() noexcept = default;
    constexpr Object(const Object&) noexcept {}  // a copy starts its own life: the count is not copied
    Object& operator=(const Object&) noexcept { return *this; }
    virtual ~Object() = default;

    /// Called once, when the last reference goes. Frees the object.
    virtual void OnFinalRelease();

    void AddRef() const noexcept {
        if (!isImmortal()) references_.fetch_add(1, std::memory_order_relaxed);
    }
    void Release() const {
        if (isImmortal()) return;
        if (references_.fetch_sub(1, std::memory_order_acq_rel) == 1) const_cast<Object*>(this)->OnFinalRelease();
    }

    std::uint32_t referenceCount() const noexcept { return references_.load(std::memory_order_relaxed); }
    bool isImmortal() const noexcept { return (references_.load(std::memory_order_relaxed) & kImmortal) != 0; }

protected:
    /// For objects that live as long as the program: their count is never touched, so threads do not fight over it.
    struct ImmortalTag {};
    explicit constexpr Object(ImmortalTag) noexcept : references_(kImmortal) {}

private:
    static constexpr std::uint32_t kImmortal = 0x80000000U;
    mutable std::atomic<std::uint32_t> references_{0};
};

/// Storage for an object with static lifetime that is never destroyed, so that threads still running at exit find it.
template <class T>
union Immortal {
    template <class... Args>
    explicit constexpr Immortal(Args&&... args) : value(std::forward<Args>(args)...) {}
    ~Immortal() {}  // NOLINT(modernize-use-equals-default): a defaulted one would be deleted

    T value;
};

}  // namespace VEXA
