#include "tests/pictures/Scenes.h"

namespace VEXA::Testing {

Drawing under(const Matrix& matrix, const Drawing& draw) {
    return [=](RenderContext& c) {
        DrawingState state = c.state();
        state.transform = matrix;
        c.restoreState(state);
        draw(c);
    };
}

std::vector<Scene> allScenes() {
    std::vector<Scene> all;
    for (const auto& part : {strokeScenes(), shapeScenes(), gradientScenes(), clipScenes(), textScenes(), oddScenes()})
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

}  // namespace VEXA::Testing
