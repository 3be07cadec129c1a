#pragma once

#include <string>

#include "vexa/support/drawing/Path.h"

namespace VEXA {

/// How a surface writes its numbers: Format::appendShortest, Format::appendHundredths or one of its own.
using NumberWriter = void (*)(float value, std::string& out);

/// Appends the path in SVG's notation with absolute commands: `M0 0L10 0C10 3 8 5 5 5Z`.
void appendPathData(const Path& path, NumberWriter number, std::string& out);

/// True when all points of the path (those that steer its curves included) lie within `tolerance` of one upright or one
/// level line, or when there are none.
bool isFlat(const Path& path, float tolerance) noexcept;

/// True when all points of the path are one.
bool isPoint(const Path& path) noexcept;

/// False when a coordinate is infinite or no number: such a shape has no place.
bool isFinite(const Path& path) noexcept;

}  // namespace VEXA
