#include "vexa/support/drawing/Matrix.h"

#include <algorithm>
#include <cmath>

#include "vexa/support/core/Math.h"

namespace VEXA {

Matrix& Matrix::multiply(const Matrix& other) noexcept {
    const auto& [a, b, c, d, e, f] = m_;
    const auto& o = other.m_;
    m_ = {a * o[0] + c * o[1], b * o[0] + d * o[1],     a * o[2] + c * o[3],
          b * o[2] + d * o[3], a * o[4] + c * o[5] + e, b * o[4] + d * o[5] + f};
    return *this;
}

Matrix& Matrix::translate(float x, float y) noexcept {
    m_[4] += m_[0] * x + m_[2] * y;
    m_[5] += m_[1] * x + m_[3] * y;
    return *this;
}

Matrix& Matrix::scale(float x, float y) noexcept {
    m_[0] *= x;
    m_[1] *= x;
    m_[2] *= y;
    m_[3] *= y;
    return *this;
}

Matrix& Matrix::rotate(float degrees) noexcept {
    const double turn = std::isfinite(degrees) ? std::fmod(static_cast<double>(degrees), 360.0) : 0.0;
    const double quarters = turn / 90.0;
    if (quarters == std::trunc(quarters)) {  // the sine of π is not quite 0
        static constexpr float kSine[] = {0, 1, 0, -1};
        const int quarter = (static_cast<int>(quarters) + 4) % 4;
        const float sine = kSine[quarter];
        const float cosine = kSine[(quarter + 1) % 4];
        return multiply({cosine, sine, -sine, cosine, 0, 0});
    }
    const double radians = turn / 180.0 * Math::kPi;
    const auto sine = static_cast<float>(std::sin(radians));
    const auto cosine = static_cast<float>(std::cos(radians));
    return multiply({cosine, sine, -sine, cosine, 0, 0});
}

Matrix& Matrix::rotateAt(float degrees, PointF centre) noexcept {
    return translate(centre.x, centre.y).rotate(degrees).translate(-centre.x, -centre.y);
}

Matrix& Matrix::shear(float x, float y) noexcept { return multiply({1, y, x, 1, 0, 0}); }

PointF Matrix::apply(PointF point) const noexcept {
    return {m_[0] * point.x + m_[2] * point.y + m_[4], m_[1] * point.x + m_[3] * point.y + m_[5]};
}

bool Matrix::isFinite() const noexcept {
    return std::all_of(m_.begin(), m_.end(), [](float element) { return std::isfinite(element); });
}

}  // namespace VEXA
