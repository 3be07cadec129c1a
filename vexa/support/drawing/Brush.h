#pragma once

#include "vexa/support/core/SmartPtr.h"
#include "vexa/support/core/Vector.h"
#include "vexa/support/drawing/Color.h"
#include "vexa/support/drawing/Matrix.h"

namespace VEXA {

enum class BrushType : std::int32_t { SolidColor = 0, Gradient = 3 };
enum class GradientUnits : std::int32_t { ObjectBoundingBox = 0, UserSpaceOnUse = 1 };
enum class GradientSpreadMethod : std::int32_t { Reflect = 0, Repeat = 1, Pad = 2 };

/// What a shape is painted with.
class Brush : public Object {
public:
    virtual BrushType getBrushType() const noexcept = 0;
    /// A brush of its own with the same look; colours are shared, they never change.
    virtual SmartPtr<Brush> clone() const = 0;
    /// False without any colour: such a brush leaves no mark.
    virtual bool paints() const noexcept = 0;

    float getOpacity() const noexcept { return opacity_; }
    void setOpacity(float opacity) noexcept { opacity_ = opacity; }

protected:
    explicit Brush(float opacity) noexcept : opacity_(opacity) {}

private:
    float opacity_;
};

/// One colour; without a colour it paints nothing.
class SolidColorBrush final : public Brush {
public:
    explicit SolidColorBrush(SmartPtr<Color> color, float opacity = 1.0F) noexcept
        : Brush(opacity), color_(std::move(color)) {}

    BrushType getBrushType() const noexcept override { return BrushType::SolidColor; }
    SmartPtr<Brush> clone() const override;
    bool paints() const noexcept override { return !color_.isEmpty(); }
    const SmartPtr<Color>& getColor() const noexcept { return color_; }

private:
    SmartPtr<Color> color_;
};

struct StopPoint {
    float offset = 0;
    SmartPtr<Color> color;
    float opacity = 1;
};

/// Stops that several brushes may share. Shared ones are not changed.
struct StopList final : Object {
    Vector<StopPoint> points;
};

/// A gradient along a list of stops. Its matrix maps gradient space into user space.
class GradientBrush : public Brush {
public:
    BrushType getBrushType() const noexcept override { return BrushType::Gradient; }
    virtual bool isRadial() const noexcept = 0;
    bool paints() const noexcept override;

    void addStop(float offset, SmartPtr<Color> color, float opacity);
    const Vector<StopPoint>& getStops() const noexcept;
    void setStops(Vector<StopPoint> stops);
    /// Takes the stops of others without a copy; one is made if they are changed later.
    void shareStops(SmartPtr<StopList> stops) noexcept { stops_ = std::move(stops); }

    /// Multiplies a transform into the gradient's matrix from the right.
    void addMatrixTransform(float a, float b, float c, float d, float e, float f) noexcept;
    const Matrix& getMatrix() const noexcept { return matrix_; }
    GradientUnits getUnits() const noexcept { return units_; }
    GradientSpreadMethod getSpreadMethod() const noexcept { return spread_; }

protected:
    GradientBrush(GradientUnits units, GradientSpreadMethod spread) noexcept
        : Brush(1), units_(units), spread_(spread) {}
    GradientBrush(const GradientBrush&) = default;

private:
    GradientUnits units_;
    GradientSpreadMethod spread_;
    Matrix matrix_;
    SmartPtr<StopList> stops_;  // none yet without a stop
};

class LinearGradientBrush final : public GradientBrush {
public:
    LinearGradientBrush(float x1, float y1, float x2, float y2, GradientUnits units,
                        GradientSpreadMethod spread) noexcept
        : GradientBrush(units, spread), start_{x1, y1}, end_{x2, y2} {}

    bool isRadial() const noexcept override { return false; }
    SmartPtr<Brush> clone() const override;
    PointF start() const noexcept { return start_; }
    PointF end() const noexcept { return end_; }

private:
    PointF start_;
    PointF end_;
};

class RadialGradientBrush final : public GradientBrush {
public:
    RadialGradientBrush(float cx, float cy, float rx, float ry, GradientUnits units,
                        GradientSpreadMethod spread) noexcept
        : GradientBrush(units, spread), centre_{cx, cy}, radii_{rx, ry} {}

    bool isRadial() const noexcept override { return true; }
    SmartPtr<Brush> clone() const override;
    PointF centre() const noexcept { return centre_; }
    SizeF radii() const noexcept { return radii_; }

private:
    PointF centre_;
    SizeF radii_;
};

}  // namespace VEXA
