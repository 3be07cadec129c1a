#include <limits>

#include "tests/engine/StyleTestTools.h"
#include "vexa/support/core/Limits.h"

namespace VEXA::Testing {
namespace {
using enum ColorAspect;

// #c80000 is (200, 0, 0): half of it is (100, 0, 0); a fifth of the way to white is (211, 51, 51).
constexpr std::uint32_t kRed = 0xc80000;
// #3264c8 is (50, 100, 200): half of it is (25, 50, 100).
constexpr std::uint32_t kBlue = 0x3264c8;

SmartPtr<Brush> solid(std::uint32_t color, float opacity = 1) { return make<SolidColorBrush>(rgb(color), opacity); }

/// What paints an area and an element, if the theme gives a blue fill of opacity 0.6 and a blue stroke of 6 px.
struct PaintCase {
    const char* attributes;
    bool hasTheme;
    const char *area, *element, *why;
};

template <class T>
std::string fillsOf(const PaintCase& c) {
    const auto object = styled<T>(c.attributes);
    const SmartPtr<Brush> theme = solid(kBlue, 0.6F);
    if (c.hasTheme) object->setThemeFill(theme);
    const SmartPtr<Brush> fill = object->getFillBrush(Normal, 0.5F);
    const std::string text = describe(fill) + ' ' + describe(object->getFillBrush(Darker, 0.5F)) + ' ' +
                             describe(object->getFillBrush(Lighter, 0.8F));
    if (!fill.isEmpty()) fill->setOpacity(0.1F);
    EXPECT_EQ(theme->getOpacity(), 0.6F) << "the caller gets a copy";
    return text;
}

template <class T>
std::string strokeOf(const PaintCase& c) {
    const auto object = styled<T>(c.attributes);
    const auto theme = make<Stroke>(solid(kBlue), 6.0F);
    if (c.hasTheme) object->setThemeStroke(theme);
    const SmartPtr<Stroke> stroke = object->getStrokeBrush(Darker, 0.5F);
    EXPECT_EQ(stroke.get() == theme.get(), c.area[0] == '6') << "it is shared by all who have it";
    return describe(stroke);
}

TEST(Style, PaintIsTheDocumentsOrElseTheThemes) {
    const char* const blue = "#3264c8/0.6 #193264/1 #5b83d3/1";
    const PaintCase fills[] = {
        {"", false, "empty empty empty", "empty empty empty", "nothing says anything"},
        {"opacity=0.2", true, blue, blue, "the theme's, whatever the document's opacity; a shaded one is opaque"},
        {"fill=#c80000", true, "#c80000/1 #640000/1 #d33333/1", "#c80000/1 #640000/1 #d33333/1", "the own one wins"},
        {"fill=none", true, "empty empty empty", blue, "an area's none keeps the theme out"},
    };
    for (const PaintCase& c : fills) {
        EXPECT_EQ(fillsOf<TestArea>(c), c.area) << c.why;
        EXPECT_EQ(fillsOf<TestElement>(c), c.element) << c.why;
    }
    const PaintCase strokes[] = {
        {"stroke-width=3", false, "empty", "empty", "a width alone makes no stroke"},
        {"stroke=#c80000", false, "1 #640000/1", "1 #640000/1", "own stroke, 1 px by default, is shaded"},
        {"stroke=#c80000;stroke-width=3pt", true, "4 #640000/1", "4 #640000/1", "in points, wins over the theme"},
        {"stroke=none", true, "empty", "empty", "none keeps the theme out"},
        {"", true, "6 #3264c8/1", "1 #3264c8/1", "the theme's is not shaded; an element of 1 px thins it"},
        {"stroke-width=3", true, "6 #3264c8/1", "6 #3264c8/1", "another width leaves the theme's stroke alone"},
        {"stroke-width=0.75pt", true, "6 #3264c8/1", "6 #3264c8/1", "1 px exactly, not 0.75 pt"},
    };
    for (const PaintCase& c : strokes) {
        EXPECT_EQ(strokeOf<TestArea>(c), c.area) << c.why;
        EXPECT_EQ(strokeOf<TestElement>(c), c.element) << c.why;
    }
    const auto element = make<TestElement>();
    element->setThemeFill(solid(kBlue));
    EXPECT_TRUE(element->getUserFillBrush(Normal, 0.5F).isEmpty()) << "the user's own fill knows no theme";
}

TEST(Style, OpacityIsTheOwnOneOrElseTheOverallOne) {
    const Case<const char*, const char*> cases[] = {
        {"", "1 1", "nothing given"},
        {"fill-opacity=0.5;opacity=0.2", "0.5 0.2", "the own one wins, they are not multiplied"},
        {"stroke-opacity=0.5;fill-opacity=1;opacity=0.2", "0.2 0.5", "a default value counts as not given"},
        {"fill-opacity=100%;stroke-opacity=0;opacity=0.2", "1 0", "100% is another value than 1; 0 is given"},
    };
    for (const auto& c : cases) {
        const auto opacities = [](auto& object) {
            give(object, "fill=red;stroke=red");
            return shown(object.getFillBrush(Normal, 0.5F)->getOpacity()) + ' ' +
                   shown(object.getStrokeBrush(Normal, 0.5F)->getBrush()->getOpacity());
        };
        EXPECT_EQ(ofBoth(c.in, opacities), c.out) << c.why;
    }
}

TEST(Style, ShadedGradientKeepsAllButItsColours) {
    auto gradient =
        make<LinearGradientBrush>(1.0F, 2.0F, 3.0F, 4.0F, GradientUnits::UserSpaceOnUse, GradientSpreadMethod::Repeat);
    gradient->addStop(0.25F, rgb(kRed), 0.5F);
    gradient->addStop(0.75F, nullptr, 1.0F);
    gradient->setOpacity(0.4F);
    const auto area = make<TestArea>();
    area->setThemeFill(gradient);
    const SmartPtr<Brush> shaded = area->getFillBrush(Lighter, 0.8F);
    EXPECT_EQ(describe(shaded), "linear/0.4 0.25:#d33333/0.5 0.75:none/1");
    EXPECT_EQ(geometryOf(shaded), "1,2 3,4 user repeat 1 0 0 1 0 0");
    EXPECT_EQ(describe(SmartPtr<Brush>(gradient)), "linear/0.4 0.25:#c80000/0.5 0.75:none/1") << "the origin is shared";
}

SmartPtr<Brush> gradientOf(const std::vector<SmartPtr<Color>>& colors) {
    auto gradient =
        make<RadialGradientBrush>(0.0F, 0.0F, 1.0F, 1.0F, GradientUnits::ObjectBoundingBox, GradientSpreadMethod::Pad);
    for (const SmartPtr<Color>& color : colors) gradient->addStop(0, color, 0.3F);
    return gradient;
}

// Dark edges are half of the main colour.
TEST(Style, CylinderRunsFromDarkOverTheMainColourToDark) {
    const std::string blue = "linear 0:#193264/0.8 0.5:#3264c8/0.8 0.7:#3264c8/0.8 0.9:#193264/0.8";
    const std::string third = "linear 0:#640000/0.3 0.5:#c80000/0.3 0.7:#c80000/0.3 0.9:#640000/0.3";
    const struct {
        const char* why;
        SmartPtr<Brush> theme;
        const char* fill;
        std::string expected;
    } cases[] = {
        {"a solid theme fill gives its opacity to all stops", solid(kBlue, 0.8F), "", blue},
        {"of four stops the third", gradientOf({rgb(1), rgb(1), rgb(kRed), rgb(1)}), "", third},
        {"and of five", gradientOf({rgb(1), rgb(1), rgb(kRed), rgb(1), rgb(1)}), "", third},
        {"an own fill is the main colour", solid(kBlue), "fill=#c80000",
         "linear 0:#640000/1 0.5:#c80000/1 0.7:#c80000/1 0.9:#640000/1"},
        {"none leaves it to the theme, as for flat fills", solid(kBlue, 0.8F), "fill=none", blue},
        {"a middle stop without a colour", gradientOf({nullptr}), "", "empty"},
        {"no stops", gradientOf({}), "", "empty"},
        {"a brush without colour", make<SolidColorBrush>(nullptr), "", "empty"},
        {"no fill at all", nullptr, "", "empty"},
    };
    for (const auto& c : cases) {
        const auto element = styled<TestElement>(c.fill);
        element->setThemeFill(c.theme);
        EXPECT_EQ(describe(element->getCylinderFillBrush(AxisOrientation::Vertical, 0.5F)), c.expected) << c.why;
    }
    const auto element = make<TestElement>();
    element->setThemeFill(solid(kBlue));
    const auto lie = [&](AxisOrientation axis) { return geometryOf(element->getCylinderFillBrush(axis, 0.5F)); };
    EXPECT_EQ(lie(AxisOrientation::Vertical), "0,0 1,0 box pad 1 0 0 1 0 0") << "across the bar";
    for (const auto axis : {AxisOrientation::Horizontal, AxisOrientation::Automatic, static_cast<AxisOrientation>(9)})
        EXPECT_EQ(lie(axis), "0,0 0,1 box pad 1 0 0 1 0 0");

    const auto root = load(rootWith("", R"(<defs><linear-gradient id="g"><stop offset="0" stop-color="#010203"/>
                                           <stop stop-color="#3264c8" stop-opacity="0.7"/></linear-gradient></defs>)"));
    element->setParent(root.get());
    give(*element, "fill=url(#g);fill-opacity=0.25");
    EXPECT_EQ(describe(element->getCylinderFillBrush(AxisOrientation::Vertical, 0.5F)),
              "linear/0.25 0:#193264/0.7 0.5:#3264c8/0.7 0.7:#3264c8/0.7 0.9:#193264/0.7")
        << "the second of two stops; the fill's opacity goes to the whole";
}

TEST(Style, StrokesCarryCapsJoinsMiterLimitAndDashesInPx) {
    const Case<const char*, const char*> cases[] = {
        {"stroke-dashoffset=6", "00 2 [] 0", "a plain line: butt and miter; an offset needs dashes"},
        {"stroke-linecap=round;stroke-linejoin=round;stroke-miterlimit=1pc", "11 16 [] 0", "round and round"},
        {"stroke-linecap=square;stroke-linejoin=bevel;stroke-dasharray=5 3pt 1;stroke-dashoffset=6pt", "22 2 [5 4 1] 8",
         "square, bevel"},
    };
    for (const auto& c : cases) {
        const auto line = [](auto& object) {
            give(object, "stroke=red");
            const SmartPtr<Stroke> stroke = object.getStrokeBrush(Normal, 0.5F);
            EXPECT_EQ(stroke->getStartLineCap(), stroke->getEndLineCap());
            const std::vector<float> dashes(stroke->getDashArray().begin(), stroke->getDashArray().end());
            return std::to_string(static_cast<int>(stroke->getStartLineCap())) +
                   std::to_string(static_cast<int>(stroke->getLineJoin())) + ' ' + shown(stroke->getMiterLimit()) +
                   " [" + shown(dashes) + "] " + shown(stroke->getDashOffset());
        };
        EXPECT_EQ(ofBoth(c.in, line), c.out) << c.why;
    }
}

template <class T>
SmartPtr<Font> fontOf(T& object, float width = 800, float height = 600) {
    VexaRenderContext context(make<NullSurface>(), width, height);
    return object.getFont(context);
}

template <class T, class Value>
std::string refusal(const char* attribute, Value value) {
    const auto object = styled<T>("stroke=red");
    object->setPlace({7, 3});
    const XmlAttributeTypeInfo* const record = object->getTypeInfo()->findAttribute(attribute);
    static_cast<TXmlAttribute<Value>&>(record->of(*object)).setValue(value);
    return failureOf([&] {
        fontOf(*object);
        object->getFillBrush(Normal, 0.5F);
        object->getStrokeBrush(Normal, 0.5F);
    });
}

template <class T>
void expectRefusals(const std::string& source, const std::vector<int>& lines) {
    const SNullableColor unknown(SColor::ofType(static_cast<SColorType>(3)));
    const std::vector<std::string> found = {refusal<T>("fill", unknown),
                                            refusal<T>("stroke", unknown),
                                            refusal<T>("stroke-linecap", static_cast<SLineCap>(3)),
                                            refusal<T>("stroke-linecap", static_cast<SLineCap>(-1)),
                                            refusal<T>("stroke-linejoin", static_cast<SLineJoin>(3)),
                                            refusal<T>("font-style", static_cast<FontStyle>(4)),
                                            refusal<T>("font-weight", static_cast<FontWeight>(2))};
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_EQ(found[i], "UnreacheableCodeException 2001 " + source + ':' + std::to_string(lines[i]) + " at 7:3");
}

TEST(Style, UnknownOrdinalsAreRefusedAtTheirPlaceInTheCode) {
    const CapturedLog log;
    expectRefusals<TestArea>("VexaAreaObject", {139, 182, 221, 221, 237, 341, 355});
    expectRefusals<TestElement>("VexaElementObject", {93, 153, 192, 192, 208, 366, 380});
    ASSERT_EQ(log.records.size(), 14U) << "each is logged";
    EXPECT_EQ(log.records[2].message, "line cap 3 is unknown");
}

TEST(Style, FontHasFamilyStyleAndWeight) {
    const Case<const char*, const char*> cases[] = {
        {"", "sans-serif 0 2", "normal style is 0, normal weight 2"},
        {"font-family=Charter;font-weight=bold;font-style=italic", "Charter 1 4", "bold weight is 4"},
        {"font-style=backslant", "sans-serif 0 2", "only italic slants"},
    };
    for (const auto& c : cases) {
        const auto face = [](auto& object) {
            const SmartPtr<Font> font = fontOf(object);
            return font->getFontFamily().toUtf8() + ' ' + std::to_string(static_cast<int>(font->getFontStyle())) + ' ' +
                   std::to_string(static_cast<int>(font->getFontWeight()));
        };
        EXPECT_EQ(ofBoth(c.in, face), c.out) << c.why;
    }
}

}  // namespace

TEST(Limits, FontSize) {
    const float infinity = std::numeric_limits<float>::infinity();
    const struct {
        const char* attributes;
        float width, height;
        const char *size, *why;
    } cases[] = {
        {"", 800, 600, "12", "the default"},
        {"font-size=10%", 800, 600, "70.71", "a percentage is one of the diagonal: a tenth of 1000 / sqrt(2)"},
        {"font-size=10000", 100, 100, "10000", "the largest"},
        {"font-size=300000000000000000000000000000000000000in", 1, 1, "10000", "beyond single precision once in px"},
        {"font-size=-5", 100, 100, "0", "no negative sizes"},
        {"font-size=0%", infinity, infinity, "0", "0 times infinity is no number"},
    };
    for (const auto& c : cases) {
        const auto size = [&](auto& object) { return shown(fontOf(object, c.width, c.height)->getFontSize()); };
        EXPECT_EQ(ofBoth(c.attributes, size), c.size) << c.why;
    }
}

}  // namespace VEXA::Testing
