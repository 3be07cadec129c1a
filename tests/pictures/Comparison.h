#pragma once

#include <string>

#include "tests/pictures/Difference.h"

namespace VEXA::Testing {

/// Whether a drawing is alike in our PNG and in what another program made of our SVG or PDF; `surface` is one of these
/// words, or "chart as SVG", "chart as PDF".
bool areAlike(const std::string& drawing, const std::string& surface, const Picture& png, const Picture& other);

/// Fails the test when they are not, and names a file in the build directory that shows both and their difference.
void expectAlike(const std::string& drawing, const std::string& surface, const Picture& png, const Picture& other);

}  // namespace VEXA::Testing
