#pragma once

#include "vexa/support/core/String.h"
#include "vexa/support/core/Vector.h"
#include "vexa/support/drawing/Geometry.h"
#include "vexa/support/values/Enumerations.h"

namespace VEXA {

/// How the labels of an axis stand beside its line.
struct LabelPlacing {
    bool isVertical = false;
    bool isAtMaximum = false;  ///< the axis lies on the right or at the top: labels stand on that side of it
    DisplayValOrientation orientation = DisplayValOrientation::Horizontal;
    float offset = 0;  ///< gap between line and labels, px
};

/// A label's text as measured, and its value's coordinate along the axis.
struct LabelText {
    String text;
    SizeF size;
    float position = 0;
};

/// A label relative to the start of the axis line.
struct Label {
    String text;
    PointF anchor;  ///< where the baseline starts, before the text is turned around that point
    RectF box;      ///< what the turned text covers
};

PointF labelAnchor(const LabelPlacing& placing, float position, const SizeF& text) noexcept;
RectF labelBox(DisplayValOrientation orientation, PointF anchor, const SizeF& text) noexcept;

/// The labels that remain when those that would overlap are dropped, from both ends towards the middle. Boxes of
/// diagonal texts are taken as half as wide, since the texts lie side by side. Boxes that only touch do not overlap.
Vector<std::size_t> keptLabels(const Vector<RectF>& boxes, bool isDiagonal);

/// The labels of an axis, laid out once for all who ask.
struct LabelLayout {
    LabelLayout() = default;
    /// `isThinned`: without the labels that would overlap.
    LabelLayout(const LabelPlacing& placing, const Vector<LabelText>& texts, bool isThinned);

    Vector<Label> labels;
    RectF box;   ///< around all labels, relative to the start of the axis line; empty without labels
    SizeF size;  ///< the largest width and the largest height of a box
};

}  // namespace VEXA
