#pragma once

#include <optional>
#include <string>

#include "vexa/support/drawing/RenderContext.h"

namespace VEXA {

/// Stated on the root, so that most strokes need not say it.
inline constexpr float kSvgMiterLimit = 2;

/// The start tag of the document with what all elements inherit, and what screen readers are told. Without a page the
/// document has no size of its own.
std::string svgRoot(const DocumentInfo& info, const std::optional<SizeF>& page);

}  // namespace VEXA
