// The charts of examples/ as people get them: pixels, SVG in a viewer, PDF on paper.

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/pictures/Comparison.h"
#include "tests/pictures/Renderers.h"
#include "vexa/engine/VexaEngine.h"

namespace VEXA::Testing {
namespace {

namespace fs = std::filesystem;

TEST(Charts, LookTheSameOnEverySurface) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(fs::path(VEXA_SOURCE_DIR) / "examples")) {
        if (entry.path().extension() == ".xml") files.push_back(entry.path());
    }
    ASSERT_GT(files.size(), 0U);
    std::vector<Document> documents;
    for (const fs::path& file : files) {
        documents.push_back([file](const SmartPtr<RenderContext>& surface) {
            VexaEngine::renderPage(make<IO::FileStream>(file.string(), IO::FileStream::Mode::Read), surface);
        });
    }
    const auto png = drawnAsPng(documents);
    const auto svg = drawnAsSvg("charts", documents, 2);
    const auto pdf = drawnAsPdf("charts", documents, 6);
    for (std::size_t i = 0; i < files.size(); ++i) {
        const std::string name = files[i].stem().string();
        for (const auto& [surface, picture] : {std::pair("chart as SVG", &svg[i]), {"chart as PDF", &pdf[i]}}) {
            expectAlike(name, surface, png[i], *picture);
            const Picture moved = picture->cut({1, 0, picture->width(), picture->height()});
            EXPECT_FALSE(areAlike(name, surface, png[i], moved)) << name << ", a pixel to the left of its " << surface;
        }
    }
}

}  // namespace
}  // namespace VEXA::Testing
