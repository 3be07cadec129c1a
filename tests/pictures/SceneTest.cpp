// The same small drawings on every surface.

#include <gtest/gtest.h>

#include "tests/pictures/Comparison.h"
#include "tests/pictures/Renderers.h"

namespace VEXA::Testing {
namespace {

std::vector<Document> documentsOf(const std::vector<Scene>& scenes) {
    std::vector<Document> documents;
    for (const Scene& scene : scenes) documents.push_back(documentOf(scene.draw, scene.page));
    return documents;
}

TEST(Scenes, LookTheSameOnEverySurface) {
    const std::vector<Scene> scenes = allScenes();
    const auto png = drawnAsPng(documentsOf(scenes));
    const auto svg = drawnAsSvg("scenes", documentsOf(scenes));
    const auto pdf = drawnAsPdf("scenes", documentsOf(scenes));
    for (std::size_t i = 0; i < scenes.size(); ++i) {
        expectAlike(scenes[i].name, "SVG", png[i], svg[i]);
        expectAlike(scenes[i].name, "PDF", png[i], pdf[i]);
        EXPECT_EQ(png[i].isBlank(), scenes[i].isBlank) << scenes[i].name;
    }
}

/// What the first test does not see would go unseen for good.
TEST(Scenes, SlightFaultsAreSeen) {
    std::vector<Scene> scenes = allScenes();
    std::erase_if(scenes, [](const Scene& scene) { return scene.isBlank; });
    const auto png = drawnAsPng(documentsOf(scenes));
    for (Scene& scene : scenes) {
        ASSERT_TRUE(scene.almost) << scene.name << " lacks a fault";
        scene.draw = scene.almost;
    }
    const auto svg = drawnAsSvg("slight-faults", documentsOf(scenes));
    const auto pdf = drawnAsPdf("slight-faults", documentsOf(scenes));
    for (std::size_t i = 0; i < scenes.size(); ++i) {
        EXPECT_FALSE(areAlike(scenes[i].name, "SVG", png[i], svg[i])) << scenes[i].name << ", SVG";
        EXPECT_FALSE(areAlike(scenes[i].name, "PDF", png[i], pdf[i])) << scenes[i].name << ", PDF";
    }
}

}  // namespace
}  // namespace VEXA::Testing
