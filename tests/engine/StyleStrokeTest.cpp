#include "tests/engine/StyleTestTools.h"

namespace VEXA {
namespace {

using namespace Testing;
using enum ColorAspect;

constexpr std::uint32_t kRed = 0xc80000;
constexpr std::uint32_t kBlue = 0x3264c8;

struct StrokeCase {
    const char* why;
    std::optional<SNullableColor> stroke;
    std::optional<SLength> width;
    bool hasTheme;
    ColorAspect aspect;
    const char* area;
    const char* element;
};

const StrokeCase kStrokeCases[] = {
    {"nothing says anything", {}, {}, false, Normal, "empty", "empty"},
    {"a width alone makes no stroke", {}, SLength(3), false, Normal, "empty", "empty"},
    {"own stroke, 1 px by default", paint(kRed), {}, false, Normal, "1 #c80000/1", "1 #c80000/1"},
    {"own width, in points", paint(kRed), SLength(3, LengthUnit::Pt), false, Normal, "4 #c80000/1", "4 #c80000/1"},
    {"shaded", paint(kRed), {}, false, Darker, "1 #640000/1", "1 #640000/1"},
    {"own stroke wins over the theme", paint(kRed), {}, true, Normal, "1 #c80000/1", "1 #c80000/1"},
    {"none keeps the theme out", noPaint(), {}, true, Normal, "empty", "empty"},
    {"the theme's stroke is not shaded; an element of 1 px thins it",
     {},
     {},
     true,
     Darker,
     "6 #3264c8/1",
     "1 #3264c8/1"},
    {"another width leaves the theme's stroke alone", {}, SLength(3), true, Normal, "6 #3264c8/1", "6 #3264c8/1"},
    {"1 px exactly, not 0.75 pt", {}, SLength(0.75F, LengthUnit::Pt), true, Normal, "6 #3264c8/1", "6 #3264c8/1"},
};

template <class T>
std::string strokeOf(const StrokeCase& c) {
    auto object = make<T>();
    if (c.stroke) object->stroke_.setValue(*c.stroke);
    if (c.width) object->strokeWidth_.setValue(*c.width);
    if (c.hasTheme) object->setThemeStroke(make<Stroke>(make<SolidColorBrush>(rgb(kBlue)), 6.0F));
    return describe(object->getStrokeBrush(c.aspect, 0.5F));
}

TEST(StyleStroke, IsTheDocumentsOrElseTheThemes) {
    for (const StrokeCase& c : kStrokeCases) {
        EXPECT_EQ(strokeOf<TestArea>(c), c.area) << c.why;
        EXPECT_EQ(strokeOf<TestElement>(c), c.element) << c.why;
    }
}

TEST(StyleStroke, ThemeStrokeIsSharedByAllWhoHaveIt) {
    const auto theme = make<Stroke>(make<SolidColorBrush>(rgb(kBlue)), 6.66F);
    auto thick = make<TestElement>();
    auto plain = make<TestElement>();
    thick->strokeWidth_.setValue(SLength(3));
    thick->setThemeStroke(theme);
    plain->setThemeStroke(theme);
    EXPECT_EQ(thick->getStrokeBrush(Normal, 0.5F).get(), theme.get());
    EXPECT_EQ(theme->getThickness(), 6.66F);
    plain->getStrokeBrush(Normal, 0.5F);
    EXPECT_EQ(thick->getStrokeBrush(Normal, 0.5F)->getThickness(), 1.0F) << "thinned by the element of 1 px";
}

template <class T>
SmartPtr<Stroke> decoratedStroke() {
    auto object = make<T>();
    object->stroke_.setValue(paint(kRed));
    object->lineCap_.setValue(SLineCap::Square);
    object->lineJoin_.setValue(SLineJoin::Bevel);
    object->miterLimit_.setValue(SLength(1, LengthUnit::Pc));
    object->dashArray_.setValue({SLength(5), SLength(3, LengthUnit::Pt), SLength(1)});
    object->dashOffset_.setValue(Length(6, LengthUnit::Pt));
    return object->getStrokeBrush(Normal, 0.5F);
}

TEST(StyleStroke, CarriesCapsJoinsMiterLimitAndDashesInPx) {
    for (const SmartPtr<Stroke>& stroke : {decoratedStroke<TestArea>(), decoratedStroke<TestElement>()}) {
        EXPECT_EQ(stroke->getStartLineCap(), LineCap::Square);
        EXPECT_EQ(stroke->getEndLineCap(), LineCap::Square);
        EXPECT_EQ(stroke->getLineJoin(), LineJoin::Bevel);
        EXPECT_EQ(stroke->getMiterLimit(), 16.0F);
        EXPECT_EQ(stroke->getDashArray(), (Vector<float>{5, 4, 1}));
        EXPECT_EQ(stroke->getDashOffset(), 8.0F);
    }
}

TEST(StyleStroke, DefaultsAreAPlainLine) {
    auto area = make<TestArea>();
    area->stroke_.setValue(paint(kRed));
    area->dashOffset_.setValue(Length(6));
    const SmartPtr<Stroke> stroke = area->getStrokeBrush(Normal, 0.5F);
    EXPECT_EQ(stroke->getStartLineCap(), LineCap::Butt);
    EXPECT_EQ(stroke->getLineJoin(), LineJoin::Miter);
    EXPECT_EQ(stroke->getMiterLimit(), 2.0F);
    EXPECT_TRUE(stroke->getDashArray().empty());
    EXPECT_EQ(stroke->getDashOffset(), 0.0F) << "an offset needs dashes";
}

TEST(StyleStroke, CapsAndJoinsKeepTheirNames) {
    const struct {
        SLineCap cap;
        LineCap expectedCap;
        SLineJoin join;
        LineJoin expectedJoin;
    } cases[] = {
        {SLineCap::Butt, LineCap::Butt, SLineJoin::Miter, LineJoin::Miter},
        {SLineCap::Round, LineCap::Round, SLineJoin::Round, LineJoin::Round},
        {SLineCap::Square, LineCap::Square, SLineJoin::Bevel, LineJoin::Bevel},
    };
    for (const auto& c : cases) {
        auto element = make<TestElement>();
        element->stroke_.setValue(paint(kRed));
        element->lineCap_.setValue(c.cap);
        element->lineJoin_.setValue(c.join);
        const SmartPtr<Stroke> stroke = element->getStrokeBrush(Normal, 0.5F);
        EXPECT_EQ(stroke->getStartLineCap(), c.expectedCap);
        EXPECT_EQ(stroke->getEndLineCap(), c.expectedCap);
        EXPECT_EQ(stroke->getLineJoin(), c.expectedJoin);
    }
}

/// Everything an object is painted with, so that each ordinal is read.
template <class T>
void paintWith(T& object) {
    const VexaRenderContext context(make<NullSurface>(), 800, 600);
    auto& writable = const_cast<VexaRenderContext&>(context);
    object.getFont(writable);
    object.getFillBrush(Normal, 0.5F);
    object.getStrokeBrush(Normal, 0.5F);
}

template <class T>
std::vector<std::string> refusals() {
    std::vector<std::string> places;
    const auto refuse = [&](auto change) {
        auto object = make<T>();
        object->stroke_.setValue(paint(kRed));
        object->setPlace({7, 3});
        change(*object);
        places.push_back(failureOf([&] { paintWith(*object); }));
    };
    const auto unknown = static_cast<SColorType>(3);
    refuse([&](T& o) { o.fill_.setValue(SNullableColor(SColor::ofType(unknown))); });
    refuse([&](T& o) { o.stroke_.setValue(SNullableColor(SColor::ofType(unknown))); });
    refuse([](T& o) { o.lineCap_.setValue(static_cast<SLineCap>(3)); });
    refuse([](T& o) { o.lineCap_.setValue(static_cast<SLineCap>(-1)); });
    refuse([](T& o) { o.lineJoin_.setValue(static_cast<SLineJoin>(3)); });
    refuse([](T& o) { o.fontStyle_.setValue(static_cast<FontStyle>(4)); });
    refuse([](T& o) { o.fontWeight_.setValue(static_cast<FontWeight>(2)); });
    return places;
}

TEST(StyleStroke, UnknownOrdinalsAreRefusedAtTheirPlaceInTheCode) {
    CapturedLog log;
    const auto expected = [](const std::string& source, std::initializer_list<int> lines) {
        std::vector<std::string> failures;
        for (const int line : lines)
            failures.push_back("UnreacheableCodeException 2001 " + source + ":" + std::to_string(line) + " at 7:3");
        return failures;
    };
    EXPECT_EQ(refusals<TestArea>(), expected("VexaAreaObject", {139, 182, 221, 221, 237, 341, 355}));
    EXPECT_EQ(refusals<TestElement>(), expected("VexaElementObject", {93, 153, 192, 192, 208, 366, 380}));
    ASSERT_EQ(log.records.size(), 14U) << "each is logged";
    EXPECT_EQ(log.records[2].message, "line cap 3 is unknown");
}

}  // namespace
}  // namespace VEXA
