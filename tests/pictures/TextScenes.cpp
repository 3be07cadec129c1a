#include "tests/pictures/Scenes.h"

namespace VEXA::Testing {

namespace {

constexpr SizeF kPage{120, 50};

using Weight = DrawingFontWeight;
using Style = DrawingFontStyle;

SmartPtr<Font> inStyle(float size, Weight weight = Weight::Normal, Style style = Style::Normal) {
    const SmartPtr<Font> font = fontOf("sans-serif", size);
    font->setFontWeight(weight);
    font->setFontStyle(style);
    return font;
}

Drawing inFont(const SmartPtr<Font>& font, const Drawing& draw) {
    return [=](RenderContext& c) {
        c.setFont(font);
        c.setFill(solid(0x102040));
        draw(c);
    };
}

Drawing said(const std::string& text, float x = 8, float y = 32, float spacing = 0) {
    return [=](RenderContext& c) { c.drawText(text, 1000, x, y, spacing, 0); };
}

Drawing plain(const std::string& text, float x = 8, float y = 32) { return inFont(inStyle(20), said(text, x, y)); }

Drawing spaced(float spacing) { return inFont(inStyle(16), said("office fit", 8, 32, spacing)); }

Drawing inBrush(const SmartPtr<Brush>& brush) {
    return inFont(inStyle(30, Weight::Bold), [=](RenderContext& c) {
        c.setFill(brush);
        said("Glow", 8, 36)(c);
    });
}

SmartPtr<Brush> overPage(float from) {
    const SmartPtr<GradientBrush> brush =
        make<LinearGradientBrush>(from, 0.0F, 84.0F, 0.0F, GradientUnits::UserSpaceOnUse, GradientSpreadMethod::Pad);
    brush->addStop(0, colorOf(0xE00000), 1);
    brush->addStop(1, colorOf(0x0000E0), 1);
    return brush;
}

Drawing aslant(float degrees) {
    return inFont(inStyle(14), [=](RenderContext& c) {
        c.addTranslateTransform(10, 8);
        c.addRotateTransform(degrees);
        said("September 2024", 0, 4)(c);
    });
}

}  // namespace

std::vector<Scene> textScenes() {
    // "Hello, 3 days!", "Hello 123 abc", "Total" in three scripts; in front of each fault a mark of the other direction
    const std::string hebrew = "\u05e9\u05dc\u05d5\u05dd, 3 \u05d9\u05de\u05d9\u05dd!";
    const std::string arabic = "\u0645\u0631\u062d\u0628\u0627 123 abc";
    const std::string mixed = "Total \u7dcf\u8a08 \u0645\u062c\u0645\u0648\u0639";
    const std::string leftToRight = "\u200e";
    const std::string rightToLeft = "\u200f";
    const Matrix enlarged = Matrix().translate(6, 4).scale(4, 4);
    const Matrix uneven = Matrix().translate(4, 4).scale(2, 1);
    const Matrix mirrored = Matrix().translate(110, 0).scale(-1, 1);
    const Matrix skewed = Matrix().translate(-4, 0).shear(0.5F, 0);
    return {
        {"text", plain("Growth"), plain("Grovth"), kPage},
        {"text that starts between pixels", plain("Growth", 8.4F, 32.6F), plain("Growth", 8.4F, 32.1F), kPage},
        {"bold", inFont(inStyle(20, Weight::Bold), said("Growth")), plain("Growth"), kPage},
        {"italic", inFont(inStyle(20, Weight::Normal, Style::Italic), said("Growth")), plain("Growth"), kPage},
        {"bold italic", inFont(inStyle(20, Weight::Bold, Style::Italic), said("Growth")),
         inFont(inStyle(20, Weight::Normal, Style::Italic), said("Growth")), kPage},
        {"kerning", plain("AVATAR To."), inFont(inStyle(20), said("AVATAR To.", 8, 32, 0.3F)), {150, 50}},
        {"ligatures", spaced(0), spaced(0.5F), kPage},
        {"letters pulled together", spaced(-0.25F), spaced(-0.5F), kPage},
        {"spaced letters have none", spaced(2), spaced(2.3F), kPage},
        {"blanks", plain(" a  b\tc", 4), plain("a b c", 4), kPage},
        {"marks that combine", plain("re\u0301sume\u0301"), plain("resumé"), kPage},
        {"Hebrew, a number and a sign", plain(hebrew), plain(leftToRight + hebrew), {150, 50}},
        {"spaced Hebrew",
         inFont(inStyle(20), said(hebrew, 8, 32, 2)),
         inFont(inStyle(20), said(leftToRight + hebrew, 8, 32, 2)),
         {180, 50}},
        {"Arabic, a number and Latin", plain(arabic), plain(leftToRight + arabic), {150, 50}},
        {"Latin, Han and Arabic", plain(mixed), plain(rightToLeft + mixed), {180, 50}},
        {"translucent text", inBrush(solid(0xE00000, 0.5F)), inBrush(solid(0xE00000, 0.65F)), kPage},
        {"text in a gradient over the page", inBrush(overPage(8)), inBrush(overPage(24)), kPage},
        {"text in a gradient over its box", inBrush(redToBlue()), inBrush(overPage(24)), kPage},
        {"a family of the machine", inFont(fontOf("monospace", 20), said("Growth")), plain("Growth"), kPage},
        {"text aslant", aslant(20), aslant(21.5F), kPage},
        {"text enlarged by a transform", under(enlarged, inFont(inStyle(6), said("Total", 0, 8))),
         under(enlarged, inFont(inStyle(6.2F), said("Total", 0, 8))), kPage},
        {"text stretched by a transform", under(uneven, inFont(inStyle(20), said("Total", 0, 28))),
         under(uneven, inFont(inStyle(20.5F), said("Total", 0, 28))), kPage},
        {"text mirrored", under(mirrored, inFont(inStyle(20), said("Total", 10, 32))),
         under(mirrored, inFont(inStyle(20), said("Total", 10.5F, 32))), kPage},
        {"text skewed", under(skewed, inFont(inStyle(20), said("Total", 4, 32))),
         under(Matrix().translate(-4, 0).shear(0.55F, 0), inFont(inStyle(20), said("Total", 4, 32))), kPage},
    };
}

}  // namespace VEXA::Testing
