#pragma once

#include <compare>
#include <concepts>
#include <cstddef>
#include <utility>

#include "vexa/support/core/Object.h"

namespace VEXA {

/// Throws NullPointerException at code location `SmartPtr`, line 118.
[[noreturn]] void throwEmptySmartPtr();

/// Counted pointer to an Object. Dereferencing an empty one throws NullPointerException.
template <class T>
class SmartPtr {
public:
    constexpr SmartPtr() noexcept = default;
    constexpr SmartPtr(std::nullptr_t) noexcept {}
    constexpr SmartPtr(T* object) noexcept : object_(object) {
        if (object_ != nullptr) object_->AddRef();
    }
    constexpr SmartPtr(const SmartPtr& other) noexcept : SmartPtr(other.object_) {}
    constexpr SmartPtr(SmartPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    template <class U>
    requires std::convertible_to<U*, T*> SmartPtr(const SmartPtr<U>& other)
    noexcept : SmartPtr(other.get()) {}
    template <class U>
    requires std::convertible_to<U*, T*> SmartPtr(SmartPtr<U>&& other)
    noexcept : object_(other.detach()) {}
    constexpr ~SmartPtr() {
        if (object_ != nullptr) object_->Release();
    }

    SmartPtr& operator=(const SmartPtr& other) noexcept {
        SmartPtr(other).swap(*this);
        return *this;
    }
    SmartPtr& operator=(SmartPtr&& other) noexcept {
        SmartPtr(std::move(other)).swap(*this);
        return *this;
    }

    /// Takes over a reference that the caller already holds.
    static SmartPtr adopt(T* object) noexcept {
        SmartPtr result;
        result.object_ = object;
        return result;
    }
    /// A pointer to an immortal object, made at compile time: no reference is counted.
    static constexpr SmartPtr immortal(T* object) noexcept {
        SmartPtr result;
        result.object_ = object;
        return result;
    }
    /// Gives the reference to the caller.
    T* detach() noexcept { return std::exchange(object_, nullptr); }

    T* get() const noexcept { return object_; }
    T& operator*() const {
        if (object_ == nullptr) throwEmptySmartPtr();
        return *object_;
    }
    T* operator->() const {
        if (object_ == nullptr) throwEmptySmartPtr();
        return object_;
    }
    explicit operator bool() const noexcept { return object_ != nullptr; }
    bool isEmpty() const noexcept { return object_ == nullptr; }
    void swap(SmartPtr& other) noexcept { std::swap(object_, other.object_); }

    friend bool operator==(const SmartPtr& a, const SmartPtr& b) noexcept { return a.object_ == b.object_; }

private:
    T* object_ = nullptr;
};

/// Makes a counted object.
template <class T, class... Args>
SmartPtr<T> make(Args&&... args) {
    return SmartPtr<T>(new T(std::forward<Args>(args)...));
}

}  // namespace VEXA
