#include <limits>

#include "tests/engine/StyleTestTools.h"
#include "vexa/support/core/Limits.h"

namespace VEXA {
namespace {

using namespace Testing;

template <class T>
SmartPtr<Font> fontOf(T& object, float width = 800, float height = 600) {
    VexaRenderContext context(make<NullSurface>(), width, height);
    return object.getFont(context);
}

TEST(StyleFont, DefaultIsTwelvePixelSansSerif) {
    auto element = make<TestElement>();
    const SmartPtr<Font> font = fontOf(*element);
    EXPECT_EQ(font->getFontFamily(), "sans-serif");
    EXPECT_EQ(font->getFontSize(), 12.0F);
    EXPECT_EQ(font->getFontStyle(), DrawingFontStyle::Normal);
    EXPECT_EQ(font->getFontWeight(), DrawingFontWeight::Normal);
}

TEST(StyleFont, OnlyItalicSlants) {
    const struct {
        FontStyle style;
        DrawingFontStyle expected;
    } cases[] = {
        {FontStyle::Normal, DrawingFontStyle::Normal},
        {FontStyle::Italic, DrawingFontStyle::Italic},
        {FontStyle::Oblique, DrawingFontStyle::Normal},
        {FontStyle::Backslant, DrawingFontStyle::Normal},
    };
    for (const auto& c : cases) {
        auto area = make<TestArea>();
        auto element = make<TestElement>();
        area->fontStyle_.setValue(c.style);
        element->fontStyle_.setValue(c.style);
        EXPECT_EQ(fontOf(*area)->getFontStyle(), c.expected);
        EXPECT_EQ(fontOf(*element)->getFontStyle(), c.expected);
    }
}

TEST(StyleFont, CarriesFamilyAndWeight) {
    auto area = make<TestArea>();
    area->fontFamily_.setValue("Charter");
    area->fontWeight_.setValue(FontWeight::Bold);
    const SmartPtr<Font> font = fontOf(*area);
    EXPECT_EQ(font->getFontFamily(), "Charter");
    EXPECT_EQ(font->getFontWeight(), DrawingFontWeight::Bold);
}

TEST(StyleFont, PercentageSizeIsOneOfTheDiagonal) {
    auto area = make<TestArea>();
    area->fontSize_.setValue(LengthOrPercent::percent(0.1F));
    EXPECT_NEAR(fontOf(*area)->getFontSize(), 70.7107F, 1e-3F) << "a tenth of 1000 / sqrt(2)";
}

}  // namespace

TEST(Limits, FontSize) {
    const float infinity = std::numeric_limits<float>::infinity();
    const struct {
        const char* why;
        LengthOrPercent size;
        float reference;
        float expected;
    } cases[] = {
        {"the largest", LengthOrPercent(Length(10'000)), 100, 10'000},
        {"a poster's worth more", LengthOrPercent(Length(10'001)), 100, 10'000},
        {"beyond single precision once in px", LengthOrPercent(Length(3e38F, LengthUnit::In)), 100, 10'000},
        {"a huge percentage", LengthOrPercent::percent(1e6F), 800, 10'000},
        {"no negative sizes", LengthOrPercent(Length(-5)), 100, 0},
        {"0 times infinity is no number", LengthOrPercent::percent(0), infinity, 0},
    };
    for (const auto& c : cases) {
        auto element = make<Testing::TestElement>();
        element->fontSize_.setValue(c.size);
        EXPECT_EQ(fontOf(*element, c.reference, c.reference)->getFontSize(), c.expected) << c.why;
    }
}

}  // namespace VEXA
