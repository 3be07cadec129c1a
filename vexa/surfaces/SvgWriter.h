#pragma once

#include "vexa/support/drawing/RenderContext.h"
#include "vexa/surfaces/Paint.h"
#include "vexa/surfaces/SvgDefinitions.h"
#include "vexa/surfaces/SvgOutput.h"

namespace VEXA {

/// Writes the content of an SVG document: one element for each operation that paints something, in groups for the
/// clips. Shapes with a coordinate that is not finite have no place and leave no mark.
class SvgWriter {
public:
    void line(const DrawingState& state, PointF from, PointF to);
    /// Sizes below 0 reach to the other side; the radii count when both are above 0.
    void rectangle(const DrawingState& state, RectF rectangle, SizeF radii);
    void ellipse(const DrawingState& state, PointF centre, SizeF radii);
    void path(const DrawingState& state, const Path& path);
    void text(const DrawingState& state, std::u32string_view text, PointF at, float spacing);

    /// Ends the clips in force.
    void finish();
    void clear();

    const std::string& definitions() const noexcept { return definitions_.text(); }
    std::string& content() noexcept { return output_.text(); }

private:
    struct Style {
        Paint fill;
        Paint stroke;
        bool paints() const noexcept { return fill.paints() || stroke.paints(); }
        bool dependsOnBox() const noexcept { return fill.dependsOnBox() || stroke.dependsOnBox(); }
    };

    /// The enlargement by a transform that keeps all shapes, which a text takes into its font size: viewers place the
    /// letters of a tiny font coarsely. Else 1.
    static float textScale(const Matrix& transform) noexcept;
    static RectF upright(RectF rectangle) noexcept;
    /// Paints nothing under a transform that is not finite.
    static Style styleOf(const DrawingState& state, bool flatBox) noexcept;

    /// A shape without width or height, which as an element of its own would show nothing: the line that it comes to.
    void lineShape(const DrawingState& state, const Path& path, NumberWriter numbers);
    void outline(const DrawingState& state, const Path& path, const Style& style, NumberWriter numbers);

    /// Enters the clip in force and starts an element.
    void open(const DrawingState& state, std::string_view start);
    /// Writes the transform and the style, and ends the element.
    void close(const DrawingState& state, const Style& style, NumberWriter numbers);
    void enterClip(ClipNode* innermost);
    void leaveClips(std::size_t depth);

    void placed(const Matrix& transform);
    void fill(const Paint& paint);
    void stroke(const Stroke& stroke, const Paint& paint, NumberWriter numbers, bool hasJoins);
    void joins(const Stroke& stroke);
    void dashes(const Stroke& stroke, NumberWriter numbers);
    void font(const Font& font, float scale, NumberWriter numbers);
    void useFamily(const String& family);

    SvgOutput output_;
    SvgDefinitions definitions_;
    Vector<SmartPtr<ClipNode>> clips_;  ///< whose groups are open, outermost first
    String family_;                     ///< the one asked for last
    std::string familyAttribute_;       ///< what it comes to; empty for the default families
};

}  // namespace VEXA
