#pragma once

#include "vexa/support/core/Vector.h"
#include "vexa/support/drawing/Brush.h"

namespace VEXA {

enum class LineCap : std::int32_t { Butt = 0, Round = 1, Square = 2 };
enum class LineJoin : std::int32_t { Miter = 0, Round = 1, Bevel = 2 };

/// How a line is drawn. Without a brush, or with a thickness of 0 or less, it paints nothing.
class Stroke final : public Object {
public:
    Stroke(SmartPtr<Brush> brush, float thickness) noexcept : brush_(std::move(brush)), thickness_(thickness) {}

    const SmartPtr<Brush>& getBrush() const noexcept { return brush_; }
    /// False when it leaves no mark: no brush that paints, or no finite thickness above 0.
    bool paints() const noexcept;
    /// Sets the opacity of this stroke's brush; the brush is cloned first, since others may share it.
    void setOpacity(float opacity);

    float getThickness() const noexcept { return thickness_; }
    void setThickness(float thickness) noexcept { thickness_ = thickness; }
    const Vector<float>& getDashArray() const noexcept { return dashArray_; }
    void setDashArray(const Vector<float>& lengths) { dashArray_ = lengths; }
    float getDashOffset() const noexcept { return dashOffset_; }
    void setDashOffset(float offset) noexcept { dashOffset_ = offset; }
    /// True when the dash array says something: no negative or non-finite entry, and a sum above 0 (as in SVG).
    bool isDashed() const noexcept;
    LineCap getStartLineCap() const noexcept { return startCap_; }
    void setStartLineCap(LineCap cap) noexcept { startCap_ = cap; }
    LineCap getEndLineCap() const noexcept { return endCap_; }
    void setEndLineCap(LineCap cap) noexcept { endCap_ = cap; }
    LineJoin getLineJoin() const noexcept { return join_; }
    void setLineJoin(LineJoin join) noexcept { join_ = join; }
    float getMiterLimit() const noexcept { return miterLimit_; }
    void setMiterLimit(float limit) noexcept { miterLimit_ = limit; }

private:
    SmartPtr<Brush> brush_;
    float thickness_;
    float miterLimit_ = 2.0F;
    float dashOffset_ = 0.0F;
    LineCap startCap_ = LineCap::Butt;
    LineCap endCap_ = LineCap::Butt;
    LineJoin join_ = LineJoin::Miter;
    Vector<float> dashArray_;
};

}  // namespace VEXA
