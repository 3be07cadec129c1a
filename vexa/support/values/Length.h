#pragma once

#include <cstdint>

#include "vexa/support/values/ValueTraits.h"

namespace VEXA {

/// Units of a length; 96 px to the inch.
enum class LengthUnit : std::int32_t { Px = 0, Pt = 1, Pc = 2, Mm = 3, Cm = 4, In = 5 };

/// A number with a unit. Equal when number and unit are equal: 1in is another value than 96px.
class Length {
public:
    constexpr Length() noexcept = default;
    explicit constexpr Length(float value, LengthUnit unit = LengthUnit::Px) noexcept : value_(value), unit_(unit) {}

    constexpr float getNumber() const noexcept { return value_; }
    constexpr LengthUnit getUnit() const noexcept { return unit_; }
    /// In px. Finite for a finite number.
    float pxSize() const noexcept;
    friend constexpr bool operator==(const Length&, const Length&) = default;

private:
    float value_ = 0;
    LengthUnit unit_ = LengthUnit::Px;
};

/// The lengths of SVG-style attributes: the same syntax and meaning.
class SLength : public Length {
public:
    using Length::Length;
    friend constexpr bool operator==(const SLength&, const SLength&) = default;
};

/// A length, or not set.
class SNullableLength {
public:
    constexpr SNullableLength() noexcept = default;
    explicit constexpr SNullableLength(SLength length) noexcept : length_(length), isSet_(true) {}

    constexpr bool isNull() const noexcept { return !isSet_; }
    constexpr const SLength& getLength() const noexcept { return length_; }
    friend constexpr bool operator==(const SNullableLength&, const SNullableLength&) = default;

private:
    SLength length_;
    bool isSet_ = false;
};

/// A length or a percentage of a reference.
class LengthOrPercent {
public:
    constexpr LengthOrPercent() noexcept = default;
    explicit constexpr LengthOrPercent(Length length) noexcept : length_(length) {}
    /// `fraction` 0.125 is 12.5%.
    static constexpr LengthOrPercent percent(float fraction) noexcept {
        LengthOrPercent result;
        result.length_ = Length(fraction);
        result.isPercent_ = true;
        return result;
    }

    constexpr bool isPercent() const noexcept { return isPercent_; }
    /// The fraction, 0.125 for 12.5%; 0 for a length.
    constexpr float getPercent() const noexcept { return isPercent_ ? length_.getNumber() : 0.0F; }
    /// The length; 0 px for a percentage.
    constexpr Length getLength() const noexcept { return isPercent_ ? Length() : length_; }
    /// In px, a percentage of `reference`. Finite for a finite reference.
    float pxSize(float reference) const noexcept;
    friend constexpr bool operator==(const LengthOrPercent&, const LengthOrPercent&) = default;

private:
    Length length_;
    bool isPercent_ = false;
};

class SLengthOrPercent : public LengthOrPercent {
public:
    constexpr SLengthOrPercent() noexcept = default;
    explicit constexpr SLengthOrPercent(Length length) noexcept : LengthOrPercent(length) {}
    explicit constexpr SLengthOrPercent(LengthOrPercent value) noexcept : LengthOrPercent(value) {}
    friend constexpr bool operator==(const SLengthOrPercent&, const SLengthOrPercent&) = default;
};

/// A number or a percentage; 1 and 100% are different values that mean the same number.
class FloatOrPercent {
public:
    constexpr FloatOrPercent() noexcept = default;
    explicit constexpr FloatOrPercent(float number, bool isPercent = false) noexcept
        : number_(number), isPercent_(isPercent) {}

    /// As a number: 0.5 for 50%.
    constexpr float getValue() const noexcept { return number_; }
    constexpr bool isPercent() const noexcept { return isPercent_; }
    friend constexpr bool operator==(const FloatOrPercent&, const FloatOrPercent&) = default;

private:
    float number_ = 0;
    bool isPercent_ = false;
};

VEXA_VALUE_TRAITS(Length);
VEXA_VALUE_TRAITS(SLength);
VEXA_VALUE_TRAITS(SNullableLength);
VEXA_VALUE_TRAITS(LengthOrPercent);
VEXA_VALUE_TRAITS(SLengthOrPercent);
VEXA_VALUE_TRAITS(FloatOrPercent);
VEXA_VALUE_TRAITS(Vector<SLength>);

}  // namespace VEXA
