#pragma once

#include <cstddef>

#include "vexa/support/core/Vector.h"

namespace VEXA {

/// The smallest and the largest of some numbers. Empty, with `min` above `max`, until one was added.
struct SpiderExtent {
    static constexpr float kNoMin = 2147483648.0F;
    static constexpr float kNoMax = -2147483648.0F;

    float min = kNoMin;
    float max = kNoMax;

    void add(float value) noexcept { add({value, value}); }
    void add(const SpiderExtent& other) noexcept;
    friend bool operator==(const SpiderExtent&, const SpiderExtent&) = default;
};

/// The scale that all spokes of a web share.
struct SpiderScale {
    float min = 0;
    float max = 0;

    /// Where on a spoke a value lies: 0 is the centre, 1 the tip, below 0 the other side of the centre. 0 for every
    /// value when the scale has no extent.
    float position(float value) const noexcept;
    friend bool operator==(const SpiderScale&, const SpiderScale&) = default;
};

/// The scale that data asks for: includes zero, both ends rounded outward.
SpiderScale spiderDataScale(const SpiderExtent& values) noexcept;

/// The scale of a web. `bounds` is the extent of what the axes ask for; an end that one of them leaves open
/// (-2147483648, 2147483648) is taken from the data.
SpiderScale spiderScale(const SpiderScale& data, const SpiderExtent& bounds) noexcept;

/// The distance between two rings: `wanted` when above 0, else one that makes equal steps of whole numbers with at
/// least four px between the rings. 0 for a scale below 1: there are no whole steps.
float spiderRingStep(const SpiderScale& scale, float radius, float wanted) noexcept;

/// The values at which rings are drawn, from the innermost to the outermost.
struct WebRings {
    Vector<float> values;
    double wanted = 1;  ///< how many rings the step asks for
    bool isThinned = false;
};

/// How many rings a web may have: Limits::kWebRings, fewer where many axes give each ring many corners, never below 2.
std::size_t spiderMostRings(std::size_t axisCount) noexcept;

/// Every step from `scale.min` on, then `scale.max`. Where that would be more than `mostRings`, the step is widened to
/// a multiple of itself: what is drawn is then a part of what was asked for, the outermost ring included.
WebRings spiderWebRings(const SpiderScale& scale, float step, std::size_t mostRings);

}  // namespace VEXA
