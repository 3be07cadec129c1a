#include <gtest/gtest.h>

#include "tests/engine/EngineTestTools.h"
#include "vexa/surfaces/DisplayListSurface.h"
#include "vexa/surfaces/NullSurface.h"

namespace VEXA {
namespace {

using namespace Testing;

/// An area of the document that tells what is asked of it.
template <class Area>
class Probe final : public Area {
public:
    Probe(std::string name, std::string& events) : name_(std::move(name)), events_(events) {}

    void render(VexaRenderContext&) override { events_ += "render " + name_ + ", "; }
    void preRender(VexaRenderContext&, SmartPtr<VexaTheme> given) override {
        events_ += "pre-render " + name_ + ", ";
        theme = given;
    }
    int getSerieCount() override { return serieCount; }

    int serieCount = 1;
    SmartPtr<VexaTheme> theme;

private:
    std::string name_;
    std::string& events_;
};
using ProbeBody = Probe<VexaAreaObject>;
using ProbeLegend = Probe<VexaLegend>;

void attach(VexaRoot& root, const char* element, XmlObject* child) {
    ASSERT_TRUE(root.getTypeInfo()->findElement(element)->attach(root, child));
    child->setParent(&root);
}

void renderOnce(VexaRoot& root) { root.render(make<NullSurface>(), 800, 600); }

std::uint32_t colorOf(const SmartPtr<Brush>& brush) { return static_cast<SolidColorBrush&>(*brush).getColor()->rgb(); }

/// A root with two bodies and a legend.
struct ProbedRoot {
    explicit ProbedRoot(const std::string& attributes) : root(load(rootWith(attributes, ""))) {
        attach(*root, "spider", first.get());
        attach(*root, "pie", second.get());
        attach(*root, "legend", legend.get());
    }

    std::string events;
    SmartPtr<ProbeBody> first = make<ProbeBody>("first", events);
    SmartPtr<ProbeBody> second = make<ProbeBody>("second", events);
    SmartPtr<ProbeLegend> legend = make<ProbeLegend>("legend", events);
    XmlObjPtr<VexaRoot> root;
};

TEST(Root, ThemeGoesToTheFirstBodyAndTheLegendOnceForATree) {
    ProbedRoot probed("");
    renderOnce(*probed.root);
    EXPECT_EQ(probed.events, "pre-render first, pre-render legend, render first, render second, render legend, ");
    EXPECT_EQ(probed.first->theme, probed.legend->theme) << "one theme for both";

    probed.events.clear();
    renderOnce(*probed.root);
    EXPECT_EQ(probed.events, "render first, render second, render legend, ") << "what was handed out stays";
}

TEST(Root, WithoutThemeNothingIsHandedOut) {
    ProbedRoot probed(R"(theme="none")");
    renderOnce(*probed.root);
    EXPECT_EQ(probed.events, "render first, render second, render legend, ");
}

TEST(Root, PaletteHasAColourForEachSeriesOfTheFirstBody) {
    ProbedRoot probed(R"(theme="red-flat")");
    probed.first->serieCount = 2;
    probed.second->serieCount = 7;
    renderOnce(*probed.root);
    constexpr std::uint32_t kRed = 0xC0504D;  // what every index beyond the palette gets
    EXPECT_NE(colorOf(probed.first->theme->getSerieFill(1)), kRed);
    EXPECT_EQ(colorOf(probed.first->theme->getSerieFill(2)), kRed);
}

TEST(Root, LegendGetsAThemeWithoutAnyBody) {
    std::string events;
    const auto root = load(rootWith(R"(theme="red-flat")", ""));
    const auto legend = make<ProbeLegend>("legend", events);
    attach(*root, "legend", legend.get());
    renderOnce(*root);
    EXPECT_EQ(events, "pre-render legend, render legend, ");
    EXPECT_EQ(colorOf(legend->theme->getSerieFill(0)), 0xC0504DU) << "the palette is empty";
}

TEST(Root, BodiesThatAreNoAreasArePassedOver) {
    std::string events;
    const auto root = load(rootWith("", ""));
    attach(*root, "spider", make<VexaTitle>().get());
    const auto body = make<ProbeBody>("body", events);
    attach(*root, "spider", body.get());
    renderOnce(*root);
    EXPECT_EQ(events, "pre-render body, render body, ");
}

TEST(Root, PaintsBackgroundBodiesAndTitleInThisOrder) {
    const std::string page = R"(<title fill="#000003"/><spider fill="#000001"/><spider fill="#000002"/>)";
    std::string order;
    for (const auto& call : drawingCalls(rootWith(R"(fill="#000000" theme="none")", page))) order += call.fill + ' ';
    EXPECT_EQ(order, "#000000 #000001 #000002 #000003 ") << "the title above the bodies, wherever it stands";
}

TEST(Root, PositionMovesAndSizeCutsThePage) {
    const auto call = drawingCalls(rootWith(R"(x="10" y="20" width="50%" height="300" fill="red")", "")).at(0);
    EXPECT_EQ(call.transform, "1 0 0 1 10 20");
    ASSERT_EQ(call.clips.size(), 1U);
    EXPECT_EQ(call.clips[0].points, "-1,-1 400,-1 400,300 -1,300");
    EXPECT_EQ(call.clips[0].transform, "1 0 0 1 10 20");
    EXPECT_EQ(call.box(), "10,20 200 x 300") << "the background counts its percentage from the size of the page";
}

TEST(Root, ViewBoxScalesTheResolvedPage) {
    const struct {
        const char* attributes;
        const char* transform;
        const char* title;
        const char* why;
    } cases[] = {
        {R"(width="50%" height="50%" viewBox="0 0 100 100")", "4 0 0 3 0 0", "0,0 100 x 10", "400 by 300 px filled"},
        {R"(width="200" height="100" viewBox="0 0 50 200")", "4 0 0 0.5 0 0", "0,0 50 x 20",
         "each direction for itself"},
        {R"(width="400" height="300" viewBox="5 7 100 100")", "4 0 0 3 20 21", "0,0 100 x 10",
         "its origin moves along"},
        {R"(width="400" height="300" viewBox="0 0 50% 25%")", "2 0 0 4 0 0", "0,0 200 x 7.5", "percent of the page"},
        {R"(x="10" y="20" width="400" height="300" viewBox="0 0 100 100")", "4 0 0 3 10 20", "0,0 100 x 10",
         "a position is in px of the page"},
        {R"(width="400" height="300" viewBox="0 0 0 0")", "1 0 0 1 0 0", "0,0 400 x 30", "the default is no view box"},
    };
    for (const auto& c : cases) {
        const auto calls = drawingCalls(rootWith(c.attributes, "<title/>"));
        EXPECT_EQ(calls.at(1).transform, c.transform) << c.why;
        EXPECT_EQ(calls.at(1).box(), c.title) << c.why;
    }
}

TEST(Root, ViewBoxIsCutAtThePage) {
    const auto call = drawingCalls(rootWith(R"(width="400" height="300" viewBox="0 0 100 100")", "")).at(0);
    ASSERT_EQ(call.clips.size(), 2U);
    EXPECT_EQ(call.clips[1].points, "-1,-1 401,-1 401,301 -1,301");
    EXPECT_EQ(call.clips[1].transform, "1 0 0 1 0 0") << "in px of the page, before it is scaled";
}

TEST(Root, SurfaceIsLeftAsItWas) {
    const auto surface = make<NullSurface>();
    surface->addTranslateTransform(3, 4);
    const Matrix before = surface->state().transform;
    const auto expectUntouched = [&](const char* why) {
        EXPECT_EQ(surface->state().transform, before) << why;
        EXPECT_FALSE(surface->state().clip) << why;
        EXPECT_FALSE(surface->state().fill) << why;
        EXPECT_FALSE(surface->state().font) << why;
    };
    load(rootWith(R"(fill="red" x="5")", R"(<title value="Title"/>)"))->render(surface, 800, 600);
    expectUntouched("after a render");
    const auto broken = load(rootWith("viewBox=\"0 0 0 100\"", ""));
    EXPECT_EQ(failureOf([&] { broken->render(surface, 800, 600); }).substr(0, 16), "Exception 34011 ");
    expectUntouched("after a failure");
}

TEST(Root, ViewBoxWithoutExtentIsRefused) {
    for (const char* viewBox : {"0 0 0 100", "0 0 100 0", "0 0 -5 100", "1 1 0 0"}) {
        const std::string document = "\n" + rootWith("viewBox=\"" + std::string(viewBox) + "\"", "");
        EXPECT_THROW(draw(document), Exception) << viewBox;
        EXPECT_NE(messageOf([&] { draw(document); }).find("view box"), std::string::npos) << viewBox;
        EXPECT_NE(failureOf([&] { draw(document); }).find(" at 2:1"), std::string::npos) << viewBox;
    }
}

TEST(Root, RenderingATreeTwiceGivesTheSamePicture) {
    const auto root = load(rootWith("fill=\"#eee\"",
                                    R"(<title value="Twice"/><spider><spider-axis id="a" caption="A"/><spider-serie>
                                    <spider-data-point axis-id="a" value="7"/></spider-serie></spider>)"));
    const auto paint = [&] {
        const auto out = make<IO::MemoryStream>();
        const auto surface = make<DisplayListSurface>(out);
        surface->beginDocument();
        root->render(surface, 800, 600);
        surface->endDocument();
        return out->bytes();
    };
    const std::string first = paint();
    EXPECT_EQ(paint(), first);
    EXPECT_NE(first.find("Twice"), std::string::npos);
}

TEST(Root, SizesResolvePercentages) {
    const auto root = load(rootWith(R"(width="25%" height="3in")", ""));
    EXPECT_EQ(root->getWidth(800), 200);
    EXPECT_EQ(root->getHeight(600), 288);
    EXPECT_TRUE(root->hasPercentWidth());
    EXPECT_FALSE(root->hasPercentHeight());
}

TEST(Root, ReferencesFindDefinitionsOnly) {
    const auto root = load(rootWith(R"(id="page")", R"(<spider id="body"/><defs><linear-gradient id="a"/></defs>
                          <defs><radial-gradient id="a"/><radial-gradient id="b"/></defs>)"));
    EXPECT_STREQ(root->findObject("#a")->getTypeInfo()->getClassName().data(), "VexaLinearGradient")
        << "of two with the same id the first one";
    EXPECT_EQ(root->findObject("#b")->getId(), "b") << "in the second list of definitions";
    EXPECT_FALSE(root->findObject("#body")) << "a body is no definition";
    EXPECT_FALSE(root->findObject("#page")) << "nor is the root itself";
    EXPECT_FALSE(root->findObject("page"));
}

}  // namespace
}  // namespace VEXA
