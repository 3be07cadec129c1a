#pragma once

#include <string>

#include "tests/pictures/Picture.h"

namespace VEXA::Testing {

/// How far two pictures are from each other, in steps of a colour component (0 to 255).
///
/// Two renderers agree on where an edge lies, not on how they smooth it: their pixels differ along every edge, to and
/// fro. So what is compared are means over squares of 3 by 3 pixels. An edge that is smoothed otherwise nearly keeps
/// its mean; one that stands a pixel off changes it by a third of its contrast, wherever in the picture that is.
struct Difference {
    float worst = 0;  ///< of any square and component
    int x = 0;        ///< the centre of that square
    int y = 0;
    float mean = 0;  ///< over all squares in which either picture shows something
};

/// Pictures of different sizes have nothing in common.
Difference differenceOf(const Picture& a, const Picture& b);

/// Writes the expected picture, their difference (black where they agree) and the actual one, side by side, as a PNG.
void writeComparison(const Picture& expected, const Picture& actual, const std::string& path);

}  // namespace VEXA::Testing
