#include <hb.h>

#include <random>

#include "tests/fonts/FontTestTools.h"
#include "vexa/support/drawing/LiberationSansKerning.h"
#include "vexa/support/drawing/LiberationSansText.h"
#include "vexa/support/drawing/LiberationSansWidths.h"

// The tables that texts are measured with, and the font that they are drawn with.

namespace VEXA::Testing {
namespace {

std::u32string charactersOfTable(bool simpleOnly) {
    std::u32string characters;
    for (const LiberationSansBlock& block : liberationSansBlocks()) {
        for (char32_t c = block.first; c < block.first + block.count; ++c) {
            if (!simpleOnly || liberationSansTextWidth(false, false, {&c, 1})) characters.push_back(c);
        }
    }
    return characters;
}

std::string nameOf(char32_t character) { return "U+" + testing::PrintToString(static_cast<unsigned>(character)); }

TEST(CompiledFont, TheTableHasTheWidthsOfTheFont) {
    for (const FontStyleRequest style : kStyles) {
        const LiberationSansStyle& table = liberationSansStyle(style.bold, style.italic);
        hb_font_t* const font = compiledFace(style)->shapingFont();
        for (const LiberationSansBlock& block : liberationSansBlocks()) {
            for (unsigned i = 0; i < block.count; ++i) {
                hb_codepoint_t glyph = 0;
                ASSERT_TRUE(hb_font_get_nominal_glyph(font, block.first + i, &glyph)) << nameOf(block.first + i);
                EXPECT_EQ(table.widths[block.start + i], hb_font_get_glyph_h_advance(font, glyph))
                    << nameOf(block.first + i);
            }
        }
    }
}

TEST(CompiledFont, ItsMetricsAreThoseOfTheTable) {
    for (const FontStyleRequest style : kStyles) {
        for (const FontMetrics& metrics :
             {compiledFace(style)->metrics(), systemFontService()->getFont(fontOf("", style))->getMetrics()}) {
            EXPECT_EQ(metrics.unitsPerEm, kLiberationSansUnitsPerEm);
            EXPECT_EQ(metrics.ascent, kLiberationSansAscent);
            EXPECT_EQ(metrics.descent, kLiberationSansDescent);
        }
        EXPECT_FALSE(compiledFace(style)->isColored());
    }
}

// In "LaLbLc…" each character stands before and after L.
void expectKerningOf(char32_t left, const std::u32string& all, FontStyleRequest style) {
    std::u32string text;
    for (const char32_t right : all) text.append({left, right});
    const ShapedText line = shaped(String(text), "sans-serif", style);
    ASSERT_EQ(line.runs.size(), 1U) << nameOf(left);
    const auto& glyphs = line.runs[0].glyphs;
    ASSERT_EQ(glyphs.size(), text.size()) << nameOf(left) << " makes ligatures";
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        const auto width = liberationSansTextWidth(style.bold, style.italic, {&text[i], 1});
        const int kerning = liberationSansKerning(style.bold, style.italic, text[i], text[i + 1]);
        ASSERT_EQ(static_cast<double>(glyphs[i + 1].x) - glyphs[i].x, static_cast<double>(*width + kerning))
            << nameOf(text[i]) << " before " << nameOf(text[i + 1]);
    }
}

TEST(CompiledFont, TheTableHasTheKerningOfTheFontForAllPairs) {
    const std::u32string all = charactersOfTable(true);
    ASSERT_GT(all.size(), 700U);
    for (const FontStyleRequest style : kStyles) {
        for (const char32_t left : all) ASSERT_NO_FATAL_FAILURE(expectKerningOf(left, all, style));
    }
}

TEST(CompiledFont, MeasuringATextIsShapingIt) {
    const std::u32string all = charactersOfTable(true) + U"\t\n\u0085";
    std::mt19937 random(7);
    for (int i = 0; i < 4000; ++i) {
        const FontStyleRequest style = kStyles[i % 4];
        std::u32string text;
        for (unsigned length = random() % 12 + 1; length > 0; --length) text.push_back(all[random() % all.size()]);
        const int measured = systemFontService()->getFont(fontOf("Arial", style))->measureString(String(text));
        ASSERT_EQ(shaped(String(text), "Arial", style).advance, measured) << String(text).toUtf8();
    }
}

TEST(CompiledFont, TheDefaultFamilyCostsNothing) {
    for (const char* name : {"", "sans-serif", "Sans-Serif", "Liberation Sans", "arial", "Helvetica"}) {
        const auto program = systemFontService()->getFont(fontOf(name));
        EXPECT_TRUE(program->isImmortal()) << name << " is asked for at each measured text";
        EXPECT_EQ(program, systemFontService()->getFont(fontOf("sans-serif"))) << name;
        EXPECT_NE(program, systemFontService()->getFont(fontOf(name, {true, false}))) << name;
    }
}

}  // namespace
}  // namespace VEXA::Testing
