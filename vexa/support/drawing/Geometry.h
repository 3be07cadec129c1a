#pragma once

namespace VEXA {

/// A point in user units (px), y downward.
struct PointF {
    float x = 0;
    float y = 0;
    friend bool operator==(const PointF&, const PointF&) = default;
};

struct SizeF {
    float width = 0;
    float height = 0;
    friend bool operator==(const SizeF&, const SizeF&) = default;
};

struct RectF {
    float x = 0;
    float y = 0;
    float width = 0;
    float height = 0;
    friend bool operator==(const RectF&, const RectF&) = default;
};

}  // namespace VEXA
