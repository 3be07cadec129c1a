#pragma once

#include <cstdint>

#include "vexa/support/values/ValueTraits.h"

namespace VEXA {

enum class AxisUnitsType : std::int32_t { Automatic = 0, Days = 1, Months = 2, Years = 3, Number = 4 };

/// The step between the values of an axis.
class AxisUnits {
public:
    constexpr AxisUnits() noexcept = default;
    explicit constexpr AxisUnits(AxisUnitsType type, float number = 0) noexcept : type_(type), number_(number) {}

    constexpr AxisUnitsType getType() const noexcept { return type_; }
    /// The step, when the type is Number.
    constexpr float getNumber() const noexcept { return number_; }
    friend constexpr bool operator==(const AxisUnits&, const AxisUnits&) = default;

private:
    AxisUnitsType type_ = AxisUnitsType::Automatic;
    float number_ = 0;
};

VEXA_VALUE_TRAITS(AxisUnits);

}  // namespace VEXA
