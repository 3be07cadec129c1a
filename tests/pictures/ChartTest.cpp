// The charts of examples/ as people get them: pixels, SVG in a viewer, PDF on paper.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "tests/pictures/Comparison.h"
#include "tests/pictures/Renderers.h"
#include "vexa/engine/VexaEngine.h"

namespace VEXA::Testing {
namespace {

namespace fs = std::filesystem;

struct Charts {
    std::vector<std::string> names;
    std::vector<Document> documents;

    Charts() {
        std::vector<fs::path> files;
        for (const auto& entry : fs::directory_iterator(fs::path(VEXA_SOURCE_DIR) / "examples")) {
            if (entry.path().extension() == ".xml") files.push_back(entry.path());
        }
        std::sort(files.begin(), files.end());
        for (const fs::path& file : files) {
            names.push_back(file.stem().string());
            documents.push_back([file](const SmartPtr<RenderContext>& surface) {
                VexaEngine::renderPage(make<IO::FileStream>(file.string(), IO::FileStream::Mode::Read), surface);
            });
        }
    }
};

void expectAlike(const char* surface, const std::vector<Picture>& png, const std::vector<Picture>& others) {
    const Charts charts;
    ASSERT_GT(charts.names.size(), 0U);
    for (std::size_t i = 0; i < charts.names.size(); ++i) {
        expectAlike(charts.names[i], surface, png[i], others[i]);
        const Picture moved = others[i].cut({1, 0, others[i].width(), others[i].height()});
        EXPECT_FALSE(areAlike(charts.names[i], surface, png[i], moved)) << charts.names[i] << ": a pixel to the left";
    }
}

TEST(Charts, LookTheSameInSvg) {
    const Charts charts;
    expectAlike("chart as SVG", drawnAsPng(charts.documents), drawnAsSvg("charts", charts.documents, 2));
}

TEST(Charts, LookTheSameInPdf) {
    const Charts charts;
    expectAlike("chart as PDF", drawnAsPng(charts.documents), drawnAsPdf("charts", charts.documents, 6));
}

}  // namespace
}  // namespace VEXA::Testing
