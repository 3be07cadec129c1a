// Arithmetic of scales and arcs with any numbers: loops end, results are finite, values ascend.

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <bit>
#include <cmath>

#include "fuzz/support/Fault.h"
#include "vexa/cartesian/AxisTicks.h"
#include "vexa/spider/SpiderScale.h"
#include "vexa/support/core/Limits.h"
#include "vexa/util/BezierArc.h"
#include "vexa/util/Util.h"

using namespace VEXA;

namespace {

/// Any float, a round one half of the times.
float floatFrom(FuzzedDataProvider& input) {
    if (input.ConsumeBool()) return static_cast<float>(input.ConsumeIntegral<std::int16_t>()) / 8;
    return std::bit_cast<float>(input.ConsumeIntegral<std::uint32_t>());
}
bool isFinite(PointF point) { return std::isfinite(point.x) && std::isfinite(point.y); }

void checkRanges(FuzzedDataProvider& input) {
    const float value = floatFrom(input);
    const double rounded = Util::adjustValueRange(static_cast<double>(value));
    Fuzz::expect(std::isfinite(rounded), "a rounded value is not finite");
    Fuzz::expect(!std::isfinite(value) || std::abs(rounded) >= std::abs(value), "a value is rounded towards zero");
    const float unit = Util::getNextFrequencyUnit(value);
    Fuzz::expect(unit > 0 && (unit >= value || unit > 1e38F || std::isnan(value)), "a unit below its value");
    Fuzz::expect(std::isfinite(Util::getFloatMinUnit(value, input.ConsumeIntegral<int>())), "a step is not finite");
    Util::getIntMinUnit(input.ConsumeIntegral<int>(), input.ConsumeIntegral<int>());
}

void checkTicks(FuzzedDataProvider& input) {
    const auto [min, max] = std::minmax({floatFrom(input), floatFrom(input)});
    NumericSteps steps{min, max, std::abs(floatFrom(input)), input.ConsumeBool(), input.ConsumeBool()};
    if (!std::isfinite(steps.min) || !std::isfinite(steps.max) || !std::isfinite(steps.step)) return;
    const std::string what =
        " on an axis from " + std::to_string(min) + " to " + std::to_string(max) + " by " + std::to_string(steps.step);
    const AxisTicks ticks = numericTicks(steps, Limits::kAxisValues);
    Fuzz::expect(ticks.values.size() <= Limits::kAxisValues, "too many values" + what);
    Fuzz::expect(std::ranges::is_sorted(ticks.values, {}, &Value::getDouble), "values do not ascend" + what);
}

void checkDates(FuzzedDataProvider& input) {
    const auto first = DateTimeEx::fromTotalSeconds(input.ConsumeIntegral<std::int64_t>());
    const auto last = DateTimeEx::fromTotalSeconds(input.ConsumeIntegral<std::int64_t>());
    const auto unit = static_cast<DateUnit>(input.ConsumeIntegralInRange(0, 2));
    const AxisTicks ticks = dateTicks(first, last, unit, Limits::kAxisValues);
    Fuzz::expect(ticks.values.size() <= Limits::kAxisValues, "too many dates of an axis");
    Fuzz::expect(std::ranges::is_sorted(ticks.values, {}, &Value::getDate), "the dates of an axis do not ascend");
}

void checkRings(FuzzedDataProvider& input) {
    SpiderExtent values;
    values.add(floatFrom(input));
    values.add(floatFrom(input));
    const SpiderScale scale = spiderScale(spiderDataScale(values), {floatFrom(input), floatFrom(input)});
    const float step = spiderRingStep(scale, floatFrom(input), floatFrom(input));
    const std::size_t most = spiderMostRings(input.ConsumeIntegral<std::uint32_t>());
    Fuzz::expect(spiderWebRings(scale, step, most).values.size() <= most, "too many rings");
    const float value = floatFrom(input);
    const bool isGiven = std::isfinite(scale.min) && std::isfinite(scale.max) && std::isfinite(value);
    Fuzz::expect(!isGiven || std::isfinite(scale.position(value)), "a place on a spoke is not finite");
}

void checkArcs(FuzzedDataProvider& input) {
    const PointF from{floatFrom(input), floatFrom(input)};
    const PointF to{floatFrom(input), floatFrom(input)};
    const float rx = floatFrom(input);
    const float ry = floatFrom(input);
    const float rotation = floatFrom(input);
    const ArcData arc = Util::convertArc(from, to, rx, ry, rotation, input.ConsumeBool(), input.ConsumeBool());
    const Vector<PointF> points = Util::getBezierArcPoints(arc);
    const bool isGiven = isFinite(from) && isFinite(to) && std::isfinite(rx + ry) && std::isfinite(rotation);
    Fuzz::expect(!isGiven || std::ranges::all_of(points, &isFinite), "a point of an arc is not finite");

    const ArcData any{
        {floatFrom(input), floatFrom(input), floatFrom(input), floatFrom(input)}, floatFrom(input), floatFrom(input)};
    Fuzz::expect(Util::getBezierArcPoints(any).size() <= 4U * 400, "too many curves of an arc");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    static constexpr void (*kChecks[])(FuzzedDataProvider&) = {&checkRanges, &checkTicks, &checkDates, &checkRings,
                                                               &checkArcs};
    input.PickValueInArray(kChecks)(input);
    return 0;
}
