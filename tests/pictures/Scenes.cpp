#include "tests/pictures/Scenes.h"

namespace VEXA::Testing {

std::vector<Scene> allScenes() {
    std::vector<Scene> all;
    for (const auto& part : {strokeScenes(), shapeScenes(), gradientScenes(), clipScenes(), textScenes(), oddScenes()})
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

}  // namespace VEXA::Testing
