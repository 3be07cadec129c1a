#pragma once

#include <vector>

#include "tests/surfaces/SurfaceTesting.h"

namespace VEXA::Testing {

/// A small drawing that every surface shows alike; each of its operations leaves a mark, unless the scene is blank.
struct Scene {
    const char* name;
    Drawing draw;
    Drawing almost = {};  ///< the same drawing with a slight fault, which no comparison may miss
    SizeF page = {60, 40};
    bool isBlank = false;  ///< nothing of it shows
};

/// The drawing under a transform.
Drawing under(const Matrix& matrix, const Drawing& draw);

std::vector<Scene> strokeScenes();
std::vector<Scene> shapeScenes();
std::vector<Scene> gradientScenes();
std::vector<Scene> clipScenes();
std::vector<Scene> textScenes();
std::vector<Scene> oddScenes();
/// All of them, in this order.
std::vector<Scene> allScenes();

}  // namespace VEXA::Testing
