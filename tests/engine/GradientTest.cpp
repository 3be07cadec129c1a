#include <functional>

#include "tests/engine/StyleTestTools.h"
#include "vexa/style/GradientDefinition.h"
#include "vexa/support/core/Limits.h"

namespace VEXA::Testing {
namespace {
using enum ColorAspect;

/// A document with a linear gradient "l" and a radial one "r" among others.
XmlObjPtr<VexaRoot> definitions(const std::string& others = "") {
    return load(rootWith("id='top'", R"x(<defs id="d">
        <linear-gradient id="l"><stop offset="0" stop-color="#c80000" stop-opacity="0.5"/>
        <stop stop-color="#3264c8"/></linear-gradient>
        <radial-gradient id="r"><stop offset="50%" stop-color="#102030"/></radial-gradient>)x" +
                                         others + "</defs>"));
}

SmartPtr<Brush> brushOf(VexaRoot& root, const char* id, ColorAspect aspect = Normal, float amount = 0.5F) {
    return dynamic_cast<GradientDefinition&>(*root.findObject(id)).getBrush(aspect, amount);
}

TEST(Gradient, BrushHasTheStopsShadedByAspect) {
    const auto root = definitions();
    EXPECT_EQ(describe(brushOf(*root, "#l")), "linear 0:#c80000/0.5 1:#3264c8/1");
    const SmartPtr<Brush> darker = brushOf(*root, "#l", Darker);
    EXPECT_EQ(brushOf(*root, "#l", Darker, 0.25F).get(), darker.get()) << "the first call fixes the brushes";
    EXPECT_EQ(describe(darker), "linear 0:#640000/0.5 1:#193264/1");
    const auto another = definitions();
    const SmartPtr<Brush> lighter = brushOf(*another, "#l", Lighter, 0.8F);
    EXPECT_EQ(describe(lighter), "linear 0:#d33333/0.5 1:#5b83d3/1") << "a fifth of the way to white";
    EXPECT_EQ(brushOf(*another, "#l", static_cast<ColorAspect>(9)).get(), lighter.get());
}

TEST(Gradient, ReadsItsAttributes) {
    const struct {
        std::string gradient;
        const char *brush, *geometry, *why;
    } cases[] = {
        {"linear-gradient id='g'/>", "linear", "0,0 1,0 box pad 1 0 0 1 0 0", "the defaults"},
        {"radial-gradient id='g' fx='0.1' fy='0.2'/>", "radial", "0.5,0.5 0.5,0.5 box pad 1 0 0 1 0 0",
         "a focus has no effect"},
        {"radial-gradient id='g' r='50%'/>", "radial", "0.5,0.5 0,0 box pad 1 0 0 1 0 0", "a percentage is nothing"},
        {"linear-gradient id='g' x1='1' y1='2' x2='3pt' y2='5' gradientUnits='userSpaceOnUse' spreadMethod='reflect' "
         "gradientTransform='translate(10 20) scale(2 3)'><stop/></linear-gradient>",
         "linear 1:#000000/1", "1,2 4,5 user reflect 2 0 0 3 10 20", "a bare stop is black, at the end"},
        {"radial-gradient id='g' cx='1' cy='2' r='3pt' gradientUnits='userSpaceOnUse' spreadMethod='repeat' "
         "gradientTransform='scale(2)'/>",
         "radial", "1,2 4,4 user repeat 2 0 0 2 0 0", "and all of the other kind"},
        {"linear-gradient id='g' href='#l'><stop/></linear-gradient>", "linear 0:#c80000/0.5 1:#3264c8/1",
         "0,0 1,0 box pad 1 0 0 1 0 0", "href lends the stops, its own ones do not count"},
        {"radial-gradient id='g' href='#m'/><radial-gradient id='m' href='#r' gradientTransform='scale(2)'><stop/>"
         "</radial-gradient>",
         "radial 1:#000000/1", "0.5,0.5 0.5,0.5 box pad 1 0 0 1 0 0", "one step only, and stops only"},
        {"linear-gradient id='g' href='#m'/><linear-gradient id='m' href='#l'/>", "linear",
         "0,0 1,0 box pad 1 0 0 1 0 0", "not a second one where the first has no stops either"},
        {"linear-gradient id='g' gradientTransform='rotate(90 1 2) skewX(45) matrix(1 2 3 4 5 6)'/>", "linear",
         "0,0 1,0 box pad -2 3 -4 7 -3 12", "the last transform is applied first"},
        {"linear-gradient id='g' href='#g'><stop/></linear-gradient>", "linear 1:#000000/1",
         "0,0 1,0 box pad 1 0 0 1 0 0", "itself is one step away"},
    };
    for (const auto& c : cases) {
        const auto root = definitions("<" + c.gradient);
        for (const ColorAspect aspect : {Normal, Lighter, Darker})
            EXPECT_EQ(geometryOf(brushOf(*root, "#g", aspect)), c.geometry) << c.why;
        EXPECT_EQ(describe(brushOf(*root, "#g")), c.brush) << c.why;
    }
}

TEST(Gradient, HrefToNoneOfItsKindGivesNothingThenNoStops) {
    const std::pair<const char*, const char*> cases[] = {
        {"#missing", "34001@5:1"}, {"#r", "34003@5:1"}, {"l", "34102@5:1"}};  // the other kind; a reference needs its #
    for (const auto& [href, code] : cases) {
        const CapturedLog log;
        const auto root = definitions("\n<linear-gradient id='g' href='" + std::string(href) + "'/>");
        EXPECT_TRUE(brushOf(*root, "#g").isEmpty()) << href;
        for (const ColorAspect aspect : {Normal, Lighter, Darker})
            EXPECT_EQ(describe(brushOf(*root, "#g", aspect)), "linear") << href;
        EXPECT_EQ(log.told(), code) << "told once";
    }
}

TEST(Gradient, WithoutStopsIsToldOnceAndOnlyIfAskedFor) {
    const struct {
        const char *gradients, *told, *why;
    } cases[] = {
        {"<linear-gradient id='g'/>", "34132@5:1", "none of its own"},
        {"<linear-gradient id='g' href='#m'/><linear-gradient id='m' href='#l'/>", "34132@5:1", "two steps away"},
        {"<radial-gradient id='g' href='#g'/>", "34132@5:1", "a loop"},
        {"<linear-gradient id='g' href='#m'><stop/></linear-gradient><linear-gradient id='m'/>", "34132@5:1",
         "its own ones do not count"},
        {"<linear-gradient id='g' href='#l'/><linear-gradient id='m'/>", "", "borrowed; nobody asks for the other one"},
    };
    for (const auto& c : cases) {
        const CapturedLog log;
        const auto root = definitions("\n" + std::string(c.gradients));
        for (const ColorAspect aspect : {Normal, Lighter, Darker}) EXPECT_FALSE(brushOf(*root, "#g", aspect).isEmpty());
        EXPECT_EQ(log.told(), c.told) << c.why;
    }
}

TEST(Gradient, ReferencesFindDefinitionsOnly) {
    const auto root = load(rootWith("id='top'", R"(<defs id="d"><linear-gradient id="a"/><radial-gradient id="a"/>
        <radial-gradient/></defs><spider id="body"/><defs><radial-gradient id="a"/><radial-gradient id="b"/></defs>)"));
    const Case<const char*, const char*> cases[] = {
        {"#a", "linear-gradient", "the first of three of that id"},
        {"#b", "radial-gradient", "in the second list"},
        {"#", "radial-gradient", "no name is the name of the nameless"},
        {"a", "", "a name is no reference"},
        {"", "", "nothing"},
        {"#d", "", "a list is no definition"},
        {"#top", "", "nor is the root"},
    };
    for (const auto& c : cases) {
        const XmlObjPtr<VexaObject> found = root->findObject(c.in);
        EXPECT_EQ(found.isEmpty() ? String() : found->getTypeInfo()->getElementName(), c.out) << c.why;
    }
}

/// Areas and elements that refer to something with their fill and their stroke.
template <class T>
class Referring : public testing::Test {
protected:
    explicit Referring() { object_->setPlace({8, 2}); }

    void refer(const std::string& url) {
        give(*object_, "stroke-width=3;fill-opacity=0.25;fill=url(" + url + ");stroke=url(" + url + ")");
    }
    std::string fill(ColorAspect aspect) { return describe(object_->getFillBrush(aspect, 0.5F)); }
    std::string stroke() { return describe(object_->getStrokeBrush(Normal, 0.5F)); }

    XmlObjPtr<VexaRoot> root_ = definitions();
    SmartPtr<T> object_ = make<T>();
    CapturedLog log_;
};
using StyledTypes = testing::Types<TestArea, TestElement>;
TYPED_TEST_SUITE(Referring, StyledTypes);

TYPED_TEST(Referring, FillsAndStrokesFindTheGradientOrWarn) {
    constexpr bool isArea = std::is_same_v<TypeParam, TestArea>;
    this->object_->setParent(this->root_.get());
    this->refer("#l");
    EXPECT_EQ(this->fill(Darker), "linear/0.25 0:#640000/0.5 1:#193264/1");
    EXPECT_EQ(this->stroke(), "3 linear 0:#c80000/0.5 1:#3264c8/1") << "an opacity is set on a copy";
    give(*this->object_, "stroke-opacity=0.75");
    EXPECT_EQ(this->stroke(), "3 linear/0.75 0:#c80000/0.5 1:#3264c8/1");
    EXPECT_EQ(brushOf(*this->root_, "#l", Darker)->getOpacity(), 1.0F) << "others share the definition's brush";
    this->refer("#r");
    EXPECT_EQ(this->fill(Normal), "radial/0.25 0.5:#102030/1");
    EXPECT_EQ(this->log_.codes(), "");

    this->object_->setThemeFill(make<SolidColorBrush>(rgb(0x3264c8)));
    this->refer("#missing");
    EXPECT_EQ(this->fill(Normal), isArea ? "empty" : "#3264c8/1");
    EXPECT_EQ(this->fill(Darker), isArea ? "empty" : "#193264/1") << "the theme's fill is shaded";
    EXPECT_EQ(this->stroke(), "3 empty") << "a stroke without a brush";
    EXPECT_EQ(this->log_.told(), "34001@8:2 34001@8:2 34001@8:2");
    EXPECT_NE(this->log_.records.at(0).message.find("#missing"), String::npos);
}

TYPED_TEST(Referring, WithoutARootTheTopOfTheTreeAnswers) {
    EXPECT_EQ(this->object_->getVexaRoot(), this->object_.get());
    EXPECT_EQ(this->object_->findObject("").get(), this->object_.get()) << "no id matches the empty one";
    give(*this->object_, "id=#e");
    EXPECT_EQ(this->object_->findReferencedObject("#e").get(), this->object_.get());
    EXPECT_TRUE(this->object_->findObject("").isEmpty());
    EXPECT_TRUE(this->object_->findObject("#E").isEmpty());
    this->refer("#e");
    EXPECT_EQ(this->fill(Normal), "empty");
    EXPECT_EQ(this->log_.told(), "34002@8:2") << "something that is no gradient";
    EXPECT_NE(this->log_.records.at(0).message.find("\"#e\""), String::npos);

    const auto defs = make<VexaDefs>();
    const auto inner = make<VexaRoot>();
    this->object_->setParent(inner.get());
    inner->setParent(this->root_.get());
    EXPECT_EQ(this->object_->getVexaRoot(), inner.get()) << "the nearest root";
    EXPECT_EQ(inner->getVexaRoot(), inner.get()) << "a root itself";
    EXPECT_TRUE(this->object_->findReferencedObject("#l").isEmpty()) << "definitions outside it do not count";
    this->object_->setParent(defs.get());
    EXPECT_EQ(this->object_->getVexaRoot(), defs.get()) << "no root at all: the top";
}

std::string repeat(const std::string& text, std::size_t count) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i) all += text;
    return all;
}

std::size_t countOf(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
    return count;
}

/// So many parts are written, and of one more as many with a warning.
void expectLimit(std::size_t limit, const std::string& part, const std::string& code,
                 const std::function<std::string(std::size_t)>& document) {
    CapturedLog log;
    EXPECT_EQ(countOf(draw(document(limit)), part), limit);
    EXPECT_EQ(log.codes(), "");
    EXPECT_EQ(countOf(draw(document(limit + 1)), part), limit);
    EXPECT_EQ(log.codes(), code);
}

TEST(Limits, GradientStops) {
    expectLimit(Limits::kGradientStops, "\"offset\"", "34004", [](std::size_t count) {
        const std::string stops = repeat("<stop offset='0.5'/>", count);
        return rootWith("theme='none' fill='url(#g)'",
                        "<defs><linear-gradient id='g'>" + stops + "</linear-gradient></defs>");
    });
}

TEST(Limits, DashEntries) {
    expectLimit(Limits::kDashEntries, "777", "34005", [](std::size_t count) {
        return rootWith("theme='none' stroke='red' stroke-dasharray='" + repeat("777 ", count) + "'", "");
    });
}

TEST(Limits, QuotesOfReferences) {
    CapturedLog log;
    draw(rootWith("theme='none' fill='url(#" + std::string(5000, 'x') + ")'", ""));
    ASSERT_EQ(log.codes(), "34001");
    EXPECT_LT(log.records[0].message.length(), Limits::kQuotedCharacters + 120);
}

// Borrowed stops are shared: with a copy in each of three brushes this would take gigabytes.
TEST(Gradient, ManyBorrowersShareTheirStops) {
    std::string document =
        "<defs><linear-gradient id='s'>" + repeat("<stop/>", Limits::kGradientStops) + "</linear-gradient>";
    std::string series = "<spider-axis/>";
    for (int i = 0; i < 20'000; ++i) {
        const std::string id = "g" + std::to_string(i);
        document += "<linear-gradient id='" + id + "' href='#s'/>";
        series += "<spider-serie fill='url(#" + id + ")'/>";
    }
    const auto root = load(rootWith("theme='none'", document + "</defs><spider>" + series + "</spider>"));
    root->render(make<NullSurface>(), 800, 600);
}

}  // namespace
}  // namespace VEXA::Testing
