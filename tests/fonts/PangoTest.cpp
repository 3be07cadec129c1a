#include <pango/pangocairo.h>

#include <memory>

#include "tests/fonts/FontTestTools.h"

// Pango chooses fonts and lays text out in another way, on top of the same libraries.

namespace VEXA::Testing {
namespace {

struct Unref {
    template <class T>
    void operator()(T* object) const {
        g_object_unref(object);
    }
};

/// Width in px of a text in 100 px, without hinting.
double widthByPango(const char* families, const char* text) {
    const std::unique_ptr<PangoFontMap, Unref> fonts(pango_cairo_font_map_new());
    const std::unique_ptr<PangoContext, Unref> context(pango_font_map_create_context(fonts.get()));
    cairo_font_options_t* const options = cairo_font_options_create();
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    pango_cairo_context_set_font_options(context.get(), options);
    cairo_font_options_destroy(options);
    pango_context_set_round_glyph_positions(context.get(), FALSE);
    pango_context_set_language(context.get(), pango_language_from_string("en"));
    PangoFontDescription* const font = pango_font_description_from_string(families);
    pango_font_description_set_absolute_size(font, 100.0 * PANGO_SCALE);
    const std::unique_ptr<PangoLayout, Unref> layout(pango_layout_new(context.get()));
    pango_layout_set_font_description(layout.get(), font);
    pango_font_description_free(font);
    pango_layout_set_text(layout.get(), text, -1);
    PangoRectangle box;
    pango_layout_get_extents(layout.get(), nullptr, &box);
    return static_cast<double>(box.width) / PANGO_SCALE;
}

TEST(Pango, TextsAreAsWide) {
    const char* const texts[] = {
        "Quarterly results: AVATAR, Te 2024",
        "\u0413\u043E\u0434\u043E\u0432\u043E\u0439 \u043E\u0442\u0447\u0451\u0442, "
        "\u0395\u03C4\u03AE\u03C3\u03B9\u03B1",
        "\u56FE\u8868 2024 \u5E74\u5EA6\u9500\u552E\u989D",
        "\u58F2\u4E0A\u306E\u30B0\u30E9\u30D5",
        "\uD55C\uAD6D\uC5B4 \uCC28\uD2B8",
        "\u0645\u0628\u064A\u0639\u0627\u062A \u0633\u0646\u0648\u064A\u0629 2024",
        "\u05DE\u05DB\u05D9\u05E8\u05D5\u05EA (EU) 12.5% \u05D4\u05E9\u05E0\u05D4",
        "Sales: \u0645\u0628\u064A\u0639\u0627\u062A 1,250 (up) \u05E2\u05DC",
        "\u0935\u093E\u0930\u094D\u0937\u093F\u0915 \u092C\u093F\u0915\u094D\u0930\u0940 \u0915\u093E "
        "\u0917\u094D\u0930\u093E\u092B",
        "\u0E22\u0E2D\u0E14\u0E02\u0E32\u0E22\u0E1B\u0E23\u0E30\u0E08\u0E33\u0E1B\u0E35",
        "\U0001F468\u200D\U0001F469\u200D\U0001F467\u200D\U0001F466\U0001F1EB\U0001F1F7\U0001F44D\U0001F3FD\u2764"
        "\uFE0F",
        "\U0001F600 ok \u2713 \u2192 \u00BD",
    };
    for (const char* text : texts) {
        for (const auto& [ours, pangos] :
             {std::pair("sans-serif", "Liberation Sans"), {"Noto Serif", "Noto Serif, Liberation Sans"}}) {
            const double expected = widthByPango(pangos, text);
            const FontReport report = reportOf(text, ours);
            EXPECT_NEAR(report.width, expected, expected / 100) << runsOf(report);
        }
    }
}

}  // namespace
}  // namespace VEXA::Testing
