#pragma once

#include <array>

#include "vexa/support/drawing/Geometry.h"

namespace VEXA {

/// An affine transform in SVG's notation: x' = a x + c y + e, y' = b x + d y + f.
/// Every operation multiplies from the right, so what is added last is applied to a point first.
class Matrix {
public:
    constexpr Matrix() noexcept = default;
    constexpr Matrix(float a, float b, float c, float d, float e, float f) noexcept : m_{a, b, c, d, e, f} {}

    Matrix& multiply(const Matrix& other) noexcept;
    Matrix& translate(float x, float y) noexcept;
    Matrix& scale(float x, float y) noexcept;
    /// Degrees, clockwise on the screen; multiples of 90 are exact. An angle that is not finite does not turn.
    Matrix& rotate(float degrees) noexcept;
    Matrix& rotateAt(float degrees, PointF centre) noexcept;
    /// Tangents of the two skew angles.
    Matrix& shear(float x, float y) noexcept;

    PointF apply(PointF point) const noexcept;
    /// a, b, c, d, e, f.
    const std::array<float, 6>& getElements() const noexcept { return m_; }
    /// False when an element is infinite or no number: what is drawn with it has no place.
    bool isFinite() const noexcept;
    bool isIdentity() const noexcept { return *this == Matrix(); }
    /// True when a rectangle stays a rectangle with sides along the axes, unturned.
    bool isScaleAndTranslate() const noexcept { return m_[1] == 0 && m_[2] == 0; }

    friend bool operator==(const Matrix&, const Matrix&) = default;

private:
    std::array<float, 6> m_{1, 0, 0, 1, 0, 0};
};

}  // namespace VEXA
