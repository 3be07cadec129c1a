#include "vexa/support/values/AxisUnits.h"

#include "vexa/support/values/Keywords.h"

namespace VEXA {

namespace {

constexpr Keyword<AxisUnitsType> kTypes[] = {
    {AxisUnitsType::Automatic, "automatic"},
    {AxisUnitsType::Days, "days"},
    {AxisUnitsType::Months, "months"},
    {AxisUnitsType::Years, "years"},
};

}  // namespace

bool ValueTraits<AxisUnits>::parse(std::string_view text, AxisUnits& out) {
    AxisUnitsType type{};
    float number = 0;
    if (Keywords<kTypes>::parse(text, type)) {
        out = AxisUnits(type);
        return true;
    }
    if (!ValueTraits<float>::parse(text, number)) return false;
    out = AxisUnits(AxisUnitsType::Number, number);
    return true;
}

std::string ValueTraits<AxisUnits>::print(const AxisUnits& value) {
    if (value.getType() == AxisUnitsType::Number) return ValueTraits<float>::print(value.getNumber());
    return Keywords<kTypes>::print(value.getType());
}

std::string_view ValueTraits<AxisUnits>::expectation() noexcept {
    return "a number, or one of automatic, days, months, years";
}
std::string_view ValueTraits<AxisUnits>::name() noexcept { return "AxisUnits"; }

}  // namespace VEXA
