#pragma once

#include "vexa/support/drawing/Brush.h"
#include "vexa/support/drawing/Path.h"
#include "vexa/surfaces/ContentIds.h"
#include "vexa/surfaces/SvgOutput.h"

namespace VEXA {

/// The gradients and clips of an SVG document. What looks the same is defined once, and its id follows from its
/// content, so that the ids of two documents in one page only meet where they mean the same.
class SvgDefinitions {
public:
    /// The id of the gradient, defined when it is new. REQUIRES: a gradient that resolvePaint() gave.
    std::uint64_t gradient(const GradientBrush& gradient);
    /// The id of the clip path; one that is not finite, or whose transform is not, lets nothing through.
    std::uint64_t clip(const Path& path, const Matrix& transform);

    /// The elements so far, for a `defs` element.
    const std::string& text() const noexcept { return output_.text(); }
    void clear() noexcept;

private:
    void addGeometry(const GradientBrush& gradient);
    void defineGradient(const GradientBrush& gradient, std::uint64_t id);
    void defineStops(const GradientBrush& gradient);
    void defineStop(float offset, const StopPoint& stop);
    void defineClip(const Path& path, const Matrix& transform, std::uint64_t id);
    void clipRectangle(const Path& path, const Matrix& transform);

    SvgOutput output_;
    ContentIds ids_;
};

}  // namespace VEXA
