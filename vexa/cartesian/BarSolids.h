#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "vexa/cartesian/BarGeometry.h"
#include "vexa/cartesian/SolidFace.h"
#include "vexa/support/values/Enumerations.h"

namespace VEXA {

/// 1, 0 or -1; 0 for what is no number.
constexpr int signOf(float value) noexcept { return static_cast<int>(value > 0) - static_cast<int>(value < 0); }

/// What decides which faces of a bar's solid are seen.
struct BarRole {
    SerieGrouping grouping = SerieGrouping::Overlapped;
    int sign = 0;                   ///< of the point's value: 1, 0 or -1
    bool isLastPositive = false;    ///< the last series with a positive value at this category is this bar's
    bool isLastNegative = false;    ///< the last series with a negative one is
    bool isLowestNegative = false;  ///< no series has a positive value here and this bar's is the first with a point
};

enum class BarFace : std::uint8_t { Front, Side, ValueEnd, BaseEnd, FarSide };

/// A face and whether the brush of the sides paints it, or that of the front.
struct PaintedFace {
    BarFace face;
    bool isShaded;
    friend bool operator==(const PaintedFace&, const PaintedFace&) = default;
};

/// The faces of a box in painting order. `Side` is the right face of a vertical and the upper one of a horizontal bar;
/// `FarSide` the lower one of a horizontal bar.
class BoxFaces {
public:
    BoxFaces(const BarRole& role, BarDirection direction);

    /// Valid as long as this object.
    std::span<const PaintedFace> faces() const& noexcept { return {faces_.data(), count_}; }
    std::span<const PaintedFace> faces() const&& = delete;

private:
    void add(std::initializer_list<PaintedFace> faces);
    void addSingle(int sign, BarDirection direction);
    void addStacked(const BarRole& role, BarDirection direction);

    std::array<PaintedFace, 16> faces_{};
    std::size_t count_ = 0;
};

/// Corners of a face, around it. The box is as deep as `depth`, up and to the right; a vertical one is moved to the
/// left by half of that, so that its depth is centred on the category.
SolidFace boxFace(BarFace face, const BarAnchors& bar, float width, float depth, BarDirection direction);

/// The round of a cylinder, and the end of it that is seen. Closed.
SmartPtr<Path> cylinderBody(const BarAnchors& bar, float width, float depth, BarDirection direction);
SmartPtr<Path> cylinderCap(const BarAnchors& bar, float width, float depth, BarDirection direction);

}  // namespace VEXA
