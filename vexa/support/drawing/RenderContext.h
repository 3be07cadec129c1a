#pragma once

#include "vexa/support/core/String.h"
#include "vexa/support/drawing/Font.h"
#include "vexa/support/drawing/Path.h"
#include "vexa/support/drawing/Stroke.h"

namespace VEXA {

/// One clip of a chain, innermost first; what lies inside all of them is painted.
struct ClipNode final : Object {
    ClipNode(SmartPtr<Path> outline, const Matrix& inForce, SmartPtr<ClipNode> outside) noexcept;
    ~ClipNode() override;

    SmartPtr<Path> path;
    Matrix transform;  ///< the one in force when the clip was set
    SmartPtr<ClipNode> outer;
    std::size_t depth;  ///< clips in the chain from here outwards, this one counted
};

/// What the drawing operations paint with. At the start: no fill, no stroke, no font, no clip.
struct DrawingState {
    SmartPtr<Brush> fill;
    SmartPtr<Stroke> stroke;
    SmartPtr<Font> font;
    SmartPtr<ClipNode> clip;
    Matrix transform;
};

/// What readers of a document are told about it: screen readers, search, PDF metadata.
struct DocumentInfo {
    String title;
    String description;
    String language;  ///< BCP 47, empty when unknown
};

/// A drawing surface: a page that vector graphics are painted on, in px, y downward.
///
///   beginDocument, then for each page: beginPage, drawing operations, endPage; at last endDocument
///
/// A surface implements these nine operations and reads the state (`state()`) in the drawing ones. Paths fill by the
/// even-odd rule; a fill or stroke that is empty, or whose brush is empty or has no colour, paints nothing. Coordinates
/// may be any float: what is not finite must not reach the output.
class RenderContext : public Object {
public:
    virtual void beginDocument() = 0;
    virtual void endDocument() = 0;
    virtual void beginPage(const SizeF& size) = 0;
    virtual void endPage() = 0;

    virtual void drawLine(float x1, float y1, float x2, float y2) = 0;
    /// The radii round the corners when both are above 0.
    virtual void drawRectangle(float x, float y, float width, float height, float rx, float ry) = 0;
    virtual void drawEllipse(float cx, float cy, float rx, float ry) = 0;
    virtual void drawPath(SmartPtr<Path> path) = 0;
    /// The first `length` characters, with the fill and the font in force, the baseline starting at (x, y). `spacing`
    /// is added between characters (px); `flags` is reserved, 0.
    virtual void drawText(const String& text, int length, float x, float y, float spacing, int flags) = 0;

    /// A closed polygon is filled and stroked, an open one only stroked. Nothing is drawn without points.
    void drawPolygon(const Vector<PointF>& points, bool closed);

    void setFill(SmartPtr<Brush> fill) noexcept { state_.fill = std::move(fill); }
    void setStroke(SmartPtr<Stroke> stroke) noexcept { state_.stroke = std::move(stroke); }
    void setFont(SmartPtr<Font> font) noexcept { state_.font = std::move(font); }
    SmartPtr<Font> getFont() const noexcept { return state_.font; }
    /// Intersects the clip in force with the path, taken in the present transform. An empty path lets nothing through;
    /// an empty pointer leaves the clip as it is.
    void setClip(SmartPtr<Path> path);
    void addTranslateTransform(float x, float y) noexcept { state_.transform.translate(x, y); }
    void addScaleTransform(float x, float y) noexcept { state_.transform.scale(x, y); }
    void addRotateTransform(float degrees) noexcept { state_.transform.rotate(degrees); }

    const DrawingState& state() const noexcept { return state_; }
    void restoreState(DrawingState state) noexcept { state_ = std::move(state); }

    /// Told before beginDocument; a surface that can, writes it into its output.
    void setDocumentInfo(DocumentInfo info) { info_ = std::move(info); }
    const DocumentInfo& documentInfo() const noexcept { return info_; }

private:
    DrawingState state_;
    DocumentInfo info_;
};

/// Restores the surface's drawing state when it ends. An empty surface is let be.
class RenderContextScope {
public:
    explicit RenderContextScope(SmartPtr<RenderContext> surface);
    ~RenderContextScope();
    RenderContextScope(const RenderContextScope&) = delete;
    RenderContextScope& operator=(const RenderContextScope&) = delete;

private:
    SmartPtr<RenderContext> surface_;
    DrawingState saved_;
};

}  // namespace VEXA
