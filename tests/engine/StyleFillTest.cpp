#include "tests/engine/StyleTestTools.h"

namespace VEXA {
namespace {

using namespace Testing;
using enum ColorAspect;

// #c80000 is (200, 0, 0): half of it is (100, 0, 0); a fifth of the way to white is (211, 51, 51).
constexpr std::uint32_t kRed = 0xc80000;
// #3264c8 is (50, 100, 200): half of it is (25, 50, 100).
constexpr std::uint32_t kBlue = 0x3264c8;

struct FillCase {
    const char* why;
    std::optional<SNullableColor> fill;
    bool hasTheme;
    ColorAspect aspect;
    float amount;
    const char* area;
    const char* element;
};

const FillCase kFillCases[] = {
    {"nothing says anything", {}, false, Normal, 0.5F, "empty", "empty"},
    {"the theme's fill where none is given", {}, true, Normal, 0.5F, "#3264c8/0.6", "#3264c8/0.6"},
    {"a shaded theme fill is opaque", {}, true, Darker, 0.5F, "#193264/1", "#193264/1"},
    {"own colour", paint(kRed), false, Normal, 0.5F, "#c80000/1", "#c80000/1"},
    {"own colour wins over the theme", paint(kRed), true, Normal, 0.5F, "#c80000/1", "#c80000/1"},
    {"darker", paint(kRed), false, Darker, 0.5F, "#640000/1", "#640000/1"},
    {"lighter", paint(kRed), false, Lighter, 0.8F, "#d33333/1", "#d33333/1"},
    {"amount 1 changes nothing", paint(kRed), false, Darker, 1.0F, "#c80000/1", "#c80000/1"},
    {"an area's none keeps the theme out, an element's does not", noPaint(), true, Normal, 0.5F, "empty",
     "#3264c8/0.6"},
    {"none without a theme", noPaint(), false, Normal, 0.5F, "empty", "empty"},
};

template <class T>
std::string fillOf(const FillCase& c) {
    auto object = make<T>();
    if (c.fill) object->fill_.setValue(*c.fill);
    if (c.hasTheme) object->setThemeFill(make<SolidColorBrush>(rgb(kBlue), 0.6F));
    return describe(object->getFillBrush(c.aspect, c.amount));
}

TEST(StyleFill, IsTheDocumentsOrElseTheThemes) {
    for (const FillCase& c : kFillCases) {
        EXPECT_EQ(fillOf<TestArea>(c), c.area) << c.why;
        EXPECT_EQ(fillOf<TestElement>(c), c.element) << c.why;
    }
}

TEST(StyleFill, ThemeFillIsHandedOutAsACopy) {
    auto element = make<TestElement>();
    const auto theme = make<SolidColorBrush>(rgb(kBlue), 1.0F);
    element->setThemeFill(theme);
    const SmartPtr<Brush> handedOut = element->getFillBrush(Normal, 0.5F);
    handedOut->setOpacity(0.1F);
    EXPECT_EQ(theme->getOpacity(), 1.0F);
}

TEST(StyleFill, UserFillKnowsNoTheme) {
    auto element = make<TestElement>();
    element->setThemeFill(make<SolidColorBrush>(rgb(kBlue)));
    EXPECT_TRUE(element->getUserFillBrush(Normal, 0.5F).isEmpty());
    element->fill_.setValue(paint(kRed));
    EXPECT_EQ(describe(element->getUserFillBrush(Normal, 0.5F)), "#c80000/1");
}

struct OpacityCase {
    const char* why;
    std::optional<FloatOrPercent> own;
    std::optional<FloatOrPercent> overall;
    float expected;
};

const OpacityCase kOpacityCases[] = {
    {"nothing given", {}, {}, 1.0F},
    {"the own one alone", FloatOrPercent(0.5F), {}, 0.5F},
    {"the overall one alone", {}, FloatOrPercent(0.2F), 0.2F},
    {"the own one wins, they are not multiplied", FloatOrPercent(0.5F), FloatOrPercent(0.2F), 0.5F},
    {"a default value counts as not given", FloatOrPercent(1.0F), FloatOrPercent(0.2F), 0.2F},
    {"100% is another value than 1 and counts as given", FloatOrPercent(1.0F, true), FloatOrPercent(0.2F), 1.0F},
    {"0 is given", FloatOrPercent(0.0F), FloatOrPercent(0.2F), 0.0F},
};

template <class T>
void expectOpacity(const OpacityCase& c) {
    auto object = make<T>();
    object->fill_.setValue(paint(kRed));
    object->stroke_.setValue(paint(kRed));
    if (c.own) object->fillOpacity_.setValue(*c.own);
    if (c.own) object->strokeOpacity_.setValue(*c.own);
    if (c.overall) object->opacity_.setValue(*c.overall);
    EXPECT_EQ(object->getFillBrush(Normal, 0.5F)->getOpacity(), c.expected) << c.why;
    EXPECT_EQ(object->getStrokeBrush(Normal, 0.5F)->getBrush()->getOpacity(), c.expected) << c.why;
}

TEST(StyleFill, OpacityIsTheOwnOneOrElseTheOverallOne) {
    for (const OpacityCase& c : kOpacityCases) {
        expectOpacity<TestArea>(c);
        expectOpacity<TestElement>(c);
    }
}

TEST(StyleFill, FillAndStrokeHaveOpacitiesOfTheirOwn) {
    auto area = make<TestArea>();
    area->fill_.setValue(paint(kRed));
    area->stroke_.setValue(paint(kRed));
    area->fillOpacity_.setValue(FloatOrPercent(0.5F));
    area->opacity_.setValue(FloatOrPercent(0.2F));
    EXPECT_EQ(area->getFillBrush(Normal, 0.5F)->getOpacity(), 0.5F);
    EXPECT_EQ(area->getStrokeBrush(Normal, 0.5F)->getBrush()->getOpacity(), 0.2F);
}

TEST(StyleFill, OpacityDoesNotTouchTheThemesFill) {
    auto area = make<TestArea>();
    area->setThemeFill(make<SolidColorBrush>(rgb(kBlue), 1.0F));
    area->opacity_.setValue(FloatOrPercent(0.2F));
    EXPECT_EQ(area->getFillBrush(Normal, 0.5F)->getOpacity(), 1.0F);
}

TEST(StyleFill, ShadedGradientKeepsAllButItsColours) {
    auto gradient =
        make<LinearGradientBrush>(1.0F, 2.0F, 3.0F, 4.0F, GradientUnits::UserSpaceOnUse, GradientSpreadMethod::Repeat);
    gradient->addStop(0.25F, rgb(kRed), 0.5F);
    gradient->addStop(0.75F, nullptr, 1.0F);
    gradient->setOpacity(0.4F);
    auto area = make<TestArea>();
    area->setThemeFill(gradient);

    const SmartPtr<Brush> shaded = area->getFillBrush(Lighter, 0.8F);
    EXPECT_EQ(describe(shaded), "linear/0.4 0.25:#d33333/0.5 0.75:none/1");
    const auto& linear = static_cast<const LinearGradientBrush&>(*shaded);
    EXPECT_EQ(linear.start(), (PointF{1, 2}));
    EXPECT_EQ(linear.end(), (PointF{3, 4}));
    EXPECT_EQ(linear.getUnits(), GradientUnits::UserSpaceOnUse);
    EXPECT_EQ(linear.getSpreadMethod(), GradientSpreadMethod::Repeat);
    EXPECT_EQ(describe(SmartPtr<Brush>(gradient)), "linear/0.4 0.25:#c80000/0.5 0.75:none/1") << "the origin is shared";
}

struct CylinderCase {
    const char* why;
    std::vector<StopPoint> themeStops;  ///< of a gradient; none: the theme's solid fill
    std::optional<SNullableColor> fill;
    const char* expected;
};

// Dark edges are half of the main colour.
TEST(StyleFill, CylinderRunsFromDarkOverTheMainColourToDark) {
    const auto stopOf = [](std::uint32_t color) { return StopPoint{0, rgb(color), 0.3F}; };
    const CylinderCase cases[] = {
        {"a solid theme fill gives its opacity to all stops",
         {},
         {},
         "linear 0:#193264/0.8 0.5:#3264c8/0.8 0.7:#3264c8/0.8 0.9:#193264/0.8"},
        {"of five stops the third",
         {stopOf(1), stopOf(2), stopOf(kRed), stopOf(4), stopOf(5)},
         {},
         "linear 0:#640000/0.3 0.5:#c80000/0.3 0.7:#c80000/0.3 0.9:#640000/0.3"},
        {"of four stops the third, too",
         {stopOf(1), stopOf(2), stopOf(kRed), stopOf(4)},
         {},
         "linear 0:#640000/0.3 0.5:#c80000/0.3 0.7:#c80000/0.3 0.9:#640000/0.3"},
        {"a fill of its own is the main colour",
         {},
         paint(kRed),
         "linear 0:#640000/1 0.5:#c80000/1 0.7:#c80000/1 0.9:#640000/1"},
        {"none leaves it to the theme, as for flat fills",
         {},
         noPaint(),
         "linear 0:#193264/0.8 0.5:#3264c8/0.8 0.7:#3264c8/0.8 0.9:#193264/0.8"},
        {"a middle stop without a colour", {StopPoint{}}, {}, "empty"},
    };
    for (const CylinderCase& c : cases) {
        auto element = make<TestElement>();
        SmartPtr<Brush> theme = make<SolidColorBrush>(rgb(kBlue), 0.8F);
        if (!c.themeStops.empty()) {
            auto gradient = make<RadialGradientBrush>(0.0F, 0.0F, 1.0F, 1.0F, GradientUnits::ObjectBoundingBox,
                                                      GradientSpreadMethod::Pad);
            gradient->setStops(c.themeStops);
            theme = gradient;
        }
        element->setThemeFill(theme);
        if (c.fill) element->fill_.setValue(*c.fill);
        EXPECT_EQ(describe(element->getCylinderFillBrush(AxisOrientation::Vertical, 0.5F)), c.expected) << c.why;
    }
}

TEST(StyleFill, CylinderNeedsAColour) {
    auto element = make<TestElement>();
    EXPECT_TRUE(element->getCylinderFillBrush(AxisOrientation::Vertical, 0.5F).isEmpty()) << "no fill at all";
    element->setThemeFill(make<SolidColorBrush>(nullptr));
    EXPECT_TRUE(element->getCylinderFillBrush(AxisOrientation::Vertical, 0.5F).isEmpty()) << "a brush without colour";
    element->setThemeFill(
        make<LinearGradientBrush>(0.0F, 0.0F, 1.0F, 0.0F, GradientUnits::ObjectBoundingBox, GradientSpreadMethod::Pad));
    EXPECT_TRUE(element->getCylinderFillBrush(AxisOrientation::Vertical, 0.5F).isEmpty()) << "no stops";
}

TEST(StyleFill, CylinderLiesAcrossTheBar) {
    auto element = make<TestElement>();
    element->setThemeFill(make<SolidColorBrush>(rgb(kBlue)));
    const auto endOf = [&](AxisOrientation orientation) {
        const SmartPtr<Brush> brush = element->getCylinderFillBrush(orientation, 0.5F);
        const auto& linear = static_cast<const LinearGradientBrush&>(*brush);
        EXPECT_EQ(linear.start(), (PointF{0, 0}));
        EXPECT_EQ(linear.getUnits(), GradientUnits::ObjectBoundingBox);
        EXPECT_EQ(linear.getSpreadMethod(), GradientSpreadMethod::Pad);
        return linear.end();
    };
    EXPECT_EQ(endOf(AxisOrientation::Vertical), (PointF{1, 0}));
    EXPECT_EQ(endOf(AxisOrientation::Horizontal), (PointF{0, 1}));
    EXPECT_EQ(endOf(AxisOrientation::Automatic), (PointF{0, 1}));
}

}  // namespace
}  // namespace VEXA
