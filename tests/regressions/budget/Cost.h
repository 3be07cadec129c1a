#pragma once

#include <string>

#include "fuzz/support/DocumentPainting.h"

namespace VEXA::Testing {

/// What painting a document takes of memory and processor time, and what SECURITY.md allows.
struct Cost {
    double bytes = 0;
    double seconds = 0;
    double bytesAllowed = 0;
    double secondsAllowed = 0;
};

/// The pictures that have bounds of their own.
enum class Picture { Vector, Png, Pdf };

/// Paints the document in a process of its own, whose peak the system knows. Throws std::runtime_error where that ends
/// early.
Cost costOf(const std::string& document, Picture picture, const Fuzz::SurfaceMaker& makeSurface);

}  // namespace VEXA::Testing
