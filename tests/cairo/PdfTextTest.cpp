#include "tests/cairo/CairoTesting.h"

namespace VEXA {
namespace {

using namespace CairoTesting;

TEST(PdfText, CanBeCopied) {
    struct Case {
        const char* why;
        const char* text;
        const char* extracted;
    };
    const Case cases[] = {
        {"letters with kerning", "AVATAR Wave To.", "AVATAR Wave To."},
        {"ligatures", "office fluffy", "office fluffy"},
        {"accents, and one that combines", "Größe a\u0301b", "Größe a\u0301b"},
        {"signs", "50 % (≤ 3 m²) \\ €", "50 % (≤ 3 m²) \\ €"},
        {"Greek and Cyrillic", "Ελληνικά Кириллица", "Ελληνικά Кириллица"},
        {"Chinese, Japanese, Korean", "中文图表 グラフ 한국어", "中文图表 グラフ 한국어"},
        {"Arabic", "مرحبا بالعالم", "\u202Bمرحبا بالعالم\u202C"},
        {"Hebrew", "שלום עולם", "\u202Bשלום עולם\u202C"},
        {"Arabic and its numbers between Latin words, from left to right", "The new price السعر 250 ريال at the end",
         "The new price \u202B ريال\u202C250 \u202B السعر\u202Cat the end"},
        {"Indic letters that change places", "हिन्दी", "हिन्दी"},
        {"each emoji has its own text", "🎉 and ✅ and 😀 and 🎉", "🎉 and ✅ and 😀 and 🎉"},
        {"emoji of several characters", "From 🇨🇭 to Rome", "From 🇨🇭 to Rome"},
        {"control characters are blanks", "North\tand south", "North and south"},
    };
    for (const auto& [why, text, extracted] : cases) {
        const std::string pdf = pdfOf(written(text));
        expectSound(pdf);
        EXPECT_EQ(plainTextOf(pdf), extracted) << why;
    }
}

TEST(PdfText, EmojiAreInColour) {
    int colored = 0;
    for (const std::uint32_t pixel : renderedPdf(pdfOf(written("🎉 and ✅"))).pixels)
        colored += (pixel >> 16U & 0xFFU) > (pixel & 0xFFU) + 60 ? 1 : 0;
    EXPECT_GT(colored, 100);
}

TEST(PdfText, FontsAreEmbeddedInParts) {
    const std::string pdf = pdfOf(written("Sales 图表"));
    const std::string fonts = outputOf("pdffonts INPUT", pdf);
    EXPECT_NE(fonts.find("+LiberationSans"), std::string::npos) << fonts;
    EXPECT_NE(fonts.find("+NotoSansCJK"), std::string::npos) << fonts;
    EXPECT_EQ(fonts.find("no  no"), std::string::npos) << fonts;
    EXPECT_LT(pdf.size(), 100'000U) << "a font of Chinese alone has 16 MB";
}

TEST(PdfText, OfAnySize) {
    for (const float size : {1e-6F, 0.01F, 0.05F, 0.5F, 3000.0F, 9999.0F, 1e9F}) {
        const std::string pdf = pdfOf([size](RenderContext& c) {
            written("Hg", 10, 100, size)(c);
            c.addScaleTransform(1e-3F, 50);
            written("Hg \U0001F600", 10, 1, size)(c);
        });
        expectSound(pdf);
        EXPECT_EQ(renderedPdf(pdf).width, 400) << size;
    }
}

}  // namespace
}  // namespace VEXA
