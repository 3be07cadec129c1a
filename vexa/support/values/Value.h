#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <string_view>

#include "vexa/support/core/DateTimeEx.h"
#include "vexa/support/values/ValueTraits.h"

namespace VEXA {

enum class ValueKind : std::int32_t { None = 0, Number = 1, Date = 2, Text = 3 };

/// A datum: nothing, a number in double precision, a date or a text. Twelve bytes, so that a counted one takes sixteen.
class Value {
public:
    constexpr Value() noexcept = default;
    explicit Value(double number) noexcept;
    explicit Value(const DateTimeEx& date) noexcept;
    /// The empty text is no value.
    explicit Value(String text) noexcept;
    Value(const Value& other) noexcept;
    constexpr Value(Value&& other) noexcept : kind_(other.kind_) {
        for (int i = 0; i < 8; ++i) raw_[i] = other.raw_[i];
        other.kind_ = ValueKind::None;
    }
    Value& operator=(Value other) noexcept;
    constexpr ~Value() {
        if (kind_ == ValueKind::Text) releaseText();
    }

    ValueKind getKind() const noexcept { return kind_; }
    bool isNone() const noexcept { return kind_ == ValueKind::None; }
    /// The number; 0 for other kinds.
    double getDouble() const noexcept { return kind_ == ValueKind::Number ? raw<double>() : 0.0; }
    /// The number where the charts' arithmetic is single precision: one beyond its range becomes its largest number.
    float getFloat() const noexcept {
        constexpr double kMax = std::numeric_limits<float>::max();
        return static_cast<float>(std::clamp(getDouble(), -kMax, kMax));
    }
    /// The date; 0001-01-01 for other kinds.
    DateTimeEx getDate() const noexcept;
    /// The value's own text: what a person expects under an axis (Format::number; a date in ISO form; a text itself).
    String getValue() const;

    /// Same kind and same number, date or text.
    friend bool operator==(const Value& a, const Value& b) noexcept { return a.equals(b); }
    /// Equal values have equal hashes.
    std::size_t hash() const noexcept;

private:
    void releaseText() noexcept;
    String getText() const noexcept;
    std::u32string_view textView() const noexcept;
    bool equals(const Value& other) const noexcept;
    template <class Raw>
    Raw raw() const noexcept {
        Raw value;
        std::memcpy(&value, raw_, sizeof(value));
        return value;
    }
    template <class Raw>
    void setRaw(Raw value) noexcept {
        static_assert(sizeof(Raw) <= sizeof(raw_));
        std::memcpy(raw_, &value, sizeof(value));
    }

    ValueKind kind_ = ValueKind::None;
    alignas(4) unsigned char raw_[8] = {};  // double, seconds, or a text's shared data
};
static_assert(sizeof(Value) == 12 && alignof(Value) == 4);

VEXA_VALUE_TRAITS(Value);

}  // namespace VEXA

template <>
struct std::hash<VEXA::Value> {
    std::size_t operator()(const VEXA::Value& value) const noexcept { return value.hash(); }
};
