#pragma once

#include "vexa/style/LongTextWidths.h"
#include "vexa/support/core/Exception.h"
#include "vexa/support/core/Limits.h"
#include "vexa/support/drawing/RenderContext.h"
#include "vexa/support/values/ViewBox.h"

namespace VEXA {

/// A drawing surface for the time of one render, with the reference size that percentages are taken of. It turns the
/// document's lengths into px; fill, stroke, font, clip and transform live in the surface, which returns to its earlier
/// state when the context ends.
///
/// Every operation that needs the surface throws NullPointerException when there is none.
class VexaRenderContext : public RenderContextScope {
public:
    /// `width` and `height`: the reference size in px.
    VexaRenderContext(SmartPtr<RenderContext> renderContext, float width, float height);

    const SmartPtr<RenderContext>& getRenderContext() const noexcept { return renderContext_; }
    SizeF getSize() const noexcept { return {width_, height_}; }
    /// What the page shows, in the coordinates of its content: of the reference size, begun where the view box says.
    RectF getPage() const noexcept { return {-origin_.x, -origin_.y, width_, height_}; }

    /// In px; a percentage is one of the reference width or height.
    float pxWidth(const LengthOrPercent& length) const noexcept { return length.pxSize(width_); }
    float pxHeight(const LengthOrPercent& length) const noexcept { return length.pxSize(height_); }
    /// In px; a percentage is one of the normalised diagonal, sqrt((width² + height²) / 2).
    float pxDiagonal(const LengthOrPercent& length) const noexcept;

    /// How many polygons of `corners` corners each the picture has room for, of Limits::kPictureCorners.
    std::size_t polygonsLeft(std::size_t corners) const noexcept;
    /// How many of `wanted` such polygons it has room for; takes their corners off what is left.
    std::size_t takePolygons(std::size_t wanted, std::size_t corners) noexcept;

    void translate(const Length& x, const Length& y);
    /// Degrees, clockwise on the screen.
    void rotate(float angle);
    void setClip(SmartPtr<Path> path);
    void setFill(SmartPtr<Brush> fill);
    void setStroke(SmartPtr<Stroke> stroke);
    void setFont(SmartPtr<Font> font);

    void drawLine(const Length& x1, const Length& y1, const Length& x2, const Length& y2);
    /// Horizontal percentages are of the reference width, vertical ones of the reference height.
    void drawRectangle(const Length& x, const Length& y, const LengthOrPercent& width, const LengthOrPercent& height,
                       const LengthOrPercent& rx, const LengthOrPercent& ry);
    /// A percentage gives an ellipse: rx of the reference width, ry of the reference height.
    void drawEllipse(const Length& cx, const Length& cy, const LengthOrPercent& r);
    void drawPolygon(const Vector<PointF>& points, bool closed);
    void drawPath(SmartPtr<Path> path);
    /// The baseline starts at (x, y). An empty text draws nothing.
    void drawText(const String& text, const Length& x, const Length& y);
    void drawText(const String& text);

    /// Width of the text and height of a line, in px. Throws UnreacheableCodeException without a font, and
    /// NullPointerException when the font service has no program for it.
    SizeF measureText(const String& text, const SmartPtr<Font>& font) const;
    /// The same in the surface's present font.
    SizeF measureText(const String& text) const;
    /// Depth below the baseline of the surface's present font, in px. Throws as measureText does.
    float getTextDescent() const;

    /// Clips to the area `width` by `height`, scales the view box to fill it, and makes the view box's size the
    /// reference size. Throws Exception 34011, with `place`, when the view box has no extent: a width or height that is
    /// not finite and above 0.
    void applyViewBox(const LengthOrPercent& width, const LengthOrPercent& height, const ViewBox& viewBox,
                      SourcePlace place = {});

private:
    SmartPtr<RenderContext> renderContext_;
    float width_;
    float height_;
    PointF origin_;  // of the content, from the corner of the page
    std::size_t cornersLeft_ = Limits::kPictureCorners;
    mutable LongTextWidths longTexts_;
};

}  // namespace VEXA
