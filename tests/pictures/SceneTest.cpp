// The same small drawings on every surface.

#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/pictures/Comparison.h"
#include "tests/pictures/Renderers.h"

namespace VEXA::Testing {
namespace {

/// Passes a drawing on to another surface, but for one operation.
class LeavingOut final : public RenderContext {
public:
    LeavingOut(SmartPtr<RenderContext> next, int operation) : next_(std::move(next)), operation_(operation) {}

    void beginDocument() override {}
    void endDocument() override {}
    void beginPage(const SizeF&) override {}
    void endPage() override {}
    void drawLine(float x1, float y1, float x2, float y2) override {
        if (RenderContext* c = next()) c->drawLine(x1, y1, x2, y2);
    }
    void drawRectangle(float x, float y, float width, float height, float rx, float ry) override {
        if (RenderContext* c = next()) c->drawRectangle(x, y, width, height, rx, ry);
    }
    void drawEllipse(float cx, float cy, float rx, float ry) override {
        if (RenderContext* c = next()) c->drawEllipse(cx, cy, rx, ry);
    }
    void drawPath(SmartPtr<Path> path) override {
        if (RenderContext* c = next()) c->drawPath(path);
    }
    void drawText(const String& text, int length, float x, float y, float spacing, int flags) override {
        if (RenderContext* c = next()) c->drawText(text, length, x, y, spacing, flags);
    }

private:
    RenderContext* next() {
        next_->restoreState(state());
        return count_++ == operation_ ? nullptr : next_.get();
    }

    SmartPtr<RenderContext> next_;
    int operation_;
    int count_ = 0;
};

Drawing leavingOut(const Drawing& draw, int operation) {
    return [=](RenderContext& c) { draw(*make<LeavingOut>(SmartPtr<RenderContext>(&c), operation)); };
}

std::vector<Document> documentsOf(const std::vector<Scene>& scenes) {
    std::vector<Document> documents;
    for (const Scene& scene : scenes) documents.push_back(documentOf(scene.draw, scene.page));
    return documents;
}

std::vector<Scene> visibleScenes() {
    std::vector<Scene> scenes = allScenes();
    std::erase_if(scenes, [](const Scene& scene) { return scene.isBlank; });
    return scenes;
}

/// The scenes and what became of them by a fault; expects that the comparison sees it, in SVG as in PDF.
void expectFaultsSeen(const char* name, const std::vector<Scene>& right, const std::vector<Scene>& wrong) {
    const auto png = drawnAsPng(documentsOf(right));
    const auto svg = drawnAsSvg(name, documentsOf(wrong));
    const auto pdf = drawnAsPdf(name, documentsOf(wrong));
    for (std::size_t i = 0; i < right.size(); ++i) {
        EXPECT_FALSE(areAlike(right[i].name, "SVG", png[i], svg[i])) << right[i].name << ", SVG";
        EXPECT_FALSE(areAlike(right[i].name, "PDF", png[i], pdf[i])) << right[i].name << ", PDF";
    }
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

TEST(Scenes, AreNotTakenForEachOther) {
    const std::vector<Scene> scenes = visibleScenes();
    const auto png = drawnAsPng(documentsOf(scenes));
    const auto svg = drawnAsSvg("others", documentsOf(scenes));
    for (std::size_t i = 0; i < scenes.size(); ++i) {
        for (std::size_t k = 0; k < scenes.size(); ++k) {
            EXPECT_EQ(areAlike(scenes[i].name, "SVG", png[i], svg[k]), i == k)
                << scenes[i].name << ", " << scenes[k].name;
        }
        for (const auto& [x, y] : {std::pair(1, 0), std::pair(0, 1)}) {
            const Picture moved = svg[i].cut({x, y, svg[i].width(), svg[i].height()});
            EXPECT_FALSE(areAlike(scenes[i].name, "SVG", png[i], moved)) << scenes[i].name << ", a pixel off";
        }
    }
}

TEST(Scenes, SlightFaultsAreSeen) {
    std::vector<Scene> scenes = visibleScenes();
    std::vector<Scene> wrong = scenes;
    for (Scene& scene : wrong) {
        ASSERT_TRUE(scene.almost) << scene.name << " lacks a fault";
        scene.draw = scene.almost;
    }
    expectFaultsSeen("slight-faults", scenes, wrong);
}

TEST(Scenes, LostOperationsAreSeen) {
    std::vector<Scene> right;
    std::vector<Scene> wrong;
    for (const Scene& scene : visibleScenes()) {
        for (int operation = 0; operation < scene.operations; ++operation) {
            right.push_back(scene);
            wrong.push_back(scene);
            wrong.back().draw = leavingOut(scene.draw, operation);
        }
    }
    expectFaultsSeen("lost-operations", right, wrong);
}

TEST(Scenes, HaveALineForEachOperationInTheDisplayList) {
    for (const Scene& scene : allScenes()) {
        const auto stream = make<IO::MemoryStream>();
        documentOf(scene.draw, scene.page)(make<DisplayListSurface>(stream));
        std::istringstream lines(stream->bytes());
        int operations = -4;  // the lines that open and close document and page
        for (std::string line; std::getline(lines, line); ++operations) {
            EXPECT_TRUE(nlohmann::json::accept(line)) << scene.name << ": " << line;
        }
        EXPECT_EQ(operations, scene.operations) << scene.name;
    }
}

}  // namespace
}  // namespace VEXA::Testing
