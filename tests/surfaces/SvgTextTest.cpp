#include <gtest/gtest.h>

#include <limits>

#include "tests/surfaces/SurfaceTesting.h"
#include "vexa/surfaces/SvgFontFamily.h"

namespace VEXA {
namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

struct TextCase {
    const char* why;
    Drawing draw;
    const char* element;
};

class Texts : public testing::TestWithParam<TextCase> {};

TEST_P(Texts, AreWritten) {
    const std::string body = svgBody([](RenderContext& c) {
        c.setFill(solid(0x333333));
        c.setFont(fontOf("sans-serif", 12));
        c.setStroke(pen(0xFF0000));  // texts are only filled
        GetParam().draw(c);
    });
    const std::string element = GetParam().element;
    EXPECT_EQ(body, element.empty() ? "" : element + "\n") << GetParam().why;
}

Drawing said(std::string text) {
    return [text](RenderContext& c) { c.drawText(text, 1000, 1, 2, 0, 0); };
}

template <class Change>
Drawing inFont(Change change) {
    return [change](RenderContext& c) {
        const SmartPtr<Font> font = fontOf("sans-serif", 12);
        change(*font);
        c.setFont(font);
        c.drawText("Ab", 2, 1, 2, 0, 0);
    };
}

#define VEXA_TEXT(content) R"(<text x="1" y="2" fill="#333333" font-size="12">)" content "</text>"
#define VEXA_SPACED(content) \
    R"(<text x="1" y="2" fill="#333333" font-size="12" xml:space="preserve">)" content "</text>"

INSTANTIATE_TEST_SUITE_P(
    Contents, Texts,
    testing::Values(
        TextCase{"plain", said("Total"), VEXA_TEXT("Total")}, TextCase{"empty", said(""), ""},
        TextCase{"any script, as UTF-8", said("\u00e9\u4e2d\U0001f44d"), VEXA_TEXT("\u00e9\u4e2d\U0001f44d")},
        TextCase{"markup stays text", said("</text><script>alert(\"1\")</script>&amp;']]>"),
                 VEXA_TEXT("&lt;/text&gt;&lt;script&gt;alert(&quot;1&quot;)&lt;/script&gt;&amp;amp;&#39;]]&gt;")},
        TextCase{"single spaces within need no care", said("a b c"), VEXA_TEXT("a b c")},
        TextCase{"two in a row are kept", said("a  b"), VEXA_SPACED("a  b")},
        TextCase{"one in front", said(" a"), VEXA_SPACED(" a")}, TextCase{"one behind", said("a "), VEXA_SPACED("a ")},
        TextCase{"nothing but a space", said(" "), VEXA_SPACED(" ")},
        TextCase{"no-break spaces are never dropped", said("\u00a0a\u00a0\u00a0b"), VEXA_TEXT("\u00a0a\u00a0\u00a0b")},
        TextCase{"control characters are spaces, also beside one", said("a\tb \nc\x7f\u0085"), VEXA_SPACED("a b  c  ")},
        TextCase{"what XML forbids is replaced", said("a\ufffe\uffff\ufffd"), VEXA_TEXT("a\ufffd\ufffd\ufffd")},
        TextCase{"U+0000 is a control character too", said(std::string("a\0b", 3)), VEXA_TEXT("a b")},
        TextCase{"the first characters only, and only their spaces count",
                 [](RenderContext& c) { c.drawText("\U0001f44db  ", 2, 1, 2, 0, 0); }, VEXA_TEXT("\U0001f44db")},
        TextCase{"fewer than none", [](RenderContext& c) { c.drawText("ab", -1, 1, 2, 0, 0); }, ""},
        TextCase{"spacing", [](RenderContext& c) { c.drawText("ab", 2, 1, 2, -0.5F, 0); },
                 R"(<text x="1" y="2" fill="#333333" font-size="12" letter-spacing="-0.5">ab</text>)"},
        TextCase{"spacing that is no number", [](RenderContext& c) { c.drawText("ab", 2, 1, 2, kNaN, 0); },
                 VEXA_TEXT("ab")}));

INSTANTIATE_TEST_SUITE_P(
    Fonts, Texts,
    testing::Values(
        TextCase{"no font",
                 [](RenderContext& c) {
                     c.setFont(nullptr);
                     c.drawText("Ab", 2, 1, 2, 0, 0);
                 },
                 ""},
        TextCase{"no fill",
                 [](RenderContext& c) {
                     c.setFill(nullptr);
                     c.drawText("Ab", 2, 1, 2, 0, 0);
                 },
                 ""},
        TextCase{"without a size nothing shows", inFont([](Font& f) { f.setFontSize(0); }), ""},
        TextCase{"nor with a negative one", inFont([](Font& f) { f.setFontSize(-12); }), ""},
        TextCase{"nor with none", inFont([](Font& f) { f.setFontSize(kNaN); }), ""},
        TextCase{"a size is cut", inFont([](Font& f) { f.setFontSize(kInfinity); }),
                 R"(<text x="1" y="2" fill="#333333" font-size="10000">Ab</text>)"},
        TextCase{"bold", inFont([](Font& f) { f.setFontWeight(DrawingFontWeight::Bold); }),
                 R"(<text x="1" y="2" fill="#333333" font-size="12" font-weight="bold">Ab</text>)"},
        TextCase{"italic", inFont([](Font& f) { f.setFontStyle(DrawingFontStyle::Italic); }),
                 R"(<text x="1" y="2" fill="#333333" font-size="12" font-style="italic">Ab</text>)"},
        TextCase{"no family is the default", inFont([](Font& f) { f.setFontFamily(""); }), VEXA_TEXT("Ab")},
        TextCase{"a family of the document, which cannot leave its attribute",
                 inFont([](Font& f) { f.setFontFamily("x\" onload=\"alert(1)"); }),
                 "<text x=\"1\" y=\"2\" fill=\"#333333\" font-size=\"12\" "
                 "font-family=\"&#39;x&quot; onload=&quot;alert(1)&#39;, Liberation Sans, Arial, Helvetica, "
                 "sans-serif\">Ab</text>"},
        TextCase{
            "under an enlargement the letters are set in their size on the page",
            [](RenderContext& c) {
                c.addTranslateTransform(100, 50);
                c.addScaleTransform(10, 10);
                c.setFont(fontOf("sans-serif", 1.25F));
                c.drawText("Ab", 2, 1, 2, 0.5F, 0);
            },
            R"svg(<text x="10" y="20" transform="translate(100 50)" fill="#333333" font-size="12.5" letter-spacing="5">Ab</text>)svg"},
        TextCase{"turned as well: size and place times 4",
                 [](RenderContext& c) {
                     c.addRotateTransform(90);
                     c.addScaleTransform(4, 4);
                     c.drawText("Ab", 2, 1, 2, 0, 0);
                 },
                 R"svg(<text x="4" y="8" transform="matrix(0 1 -1 0 0 0)" fill="#333333" font-size="48">Ab</text>)svg"},
        TextCase{
            "an uneven one stays in the transform",
            [](RenderContext& c) {
                c.addScaleTransform(4, 8);
                c.drawText("Ab", 2, 1, 2, 0, 0);
            },
            R"svg(<text x="1" y="2" transform="matrix(4 0 0 8 0 0)" fill="#333333" font-size="12">Ab</text>)svg"}));

TEST(SvgText, AFamilyAppliesToItsOwnTextsOnly) {
    const std::string body = svgBody([](RenderContext& c) {
        c.setFill(solid(0));
        for (const char* family : {"Georgia", "Georgia", "sans-serif", "monospace"}) {
            c.setFont(fontOf(family, 12));
            c.drawText("a", 1, 0, 0, 0, 0);
        }
    });
    const char* const georgia = "font-family=\"Georgia, Liberation Sans, Arial, Helvetica, sans-serif\"";
    EXPECT_EQ(body, "<text x=\"0\" y=\"0\" fill=\"#000000\" font-size=\"12\" " + std::string(georgia) +
                        ">a</text>\n"
                        "<text x=\"0\" y=\"0\" fill=\"#000000\" font-size=\"12\" " +
                        georgia +
                        ">a</text>\n"
                        "<text x=\"0\" y=\"0\" fill=\"#000000\" font-size=\"12\">a</text>\n"
                        "<text x=\"0\" y=\"0\" fill=\"#000000\" font-size=\"12\" font-family=\"monospace\">a</text>\n");
}

TEST(SvgFontFamily, ListsOfFamilies) {
    struct Case {
        const char* why;
        const char* requested;
        const char* families;
    };
    const std::string fallback = "Liberation Sans, Arial, Helvetica, sans-serif";
    for (const auto& [why, requested, families] : {
             Case{"nothing asked for", "", ""},
             Case{"the default by name, in any case", " Sans-Serif ", ""},
             Case{"a name of plain words", "Noto Sans", "Noto Sans, "},
             Case{"another generic family stands alone", "serif", "serif"},
             Case{"a list; the default comes in the place of its end", "Fira Sans , sans-serif", "Fira Sans, "},
             Case{"a list that ends with another generic family", "Fira Code,monospace", "Fira Code, monospace"},
             Case{"what follows a generic family is never used", "serif, Fira Sans", "serif"},
             Case{"a word that starts with a figure is no plain word", "3270 Condensed", "'3270 Condensed', "},
             Case{"nor one with signs", "A+B", "'A+B', "},
             Case{"two spaces would become one", "A  B", "'A  B', "},
             Case{"letters of any script are plain", "\u6e38\u660e\u671d", "\u6e38\u660e\u671d, "},
             Case{"quoted names keep their commas, lose their marks", "\"A, B\" , C", "'A, B', C, "},
             Case{"a mark without its partner ends with the list", "'A, B", "'A, B', "},
             Case{"text between a quoted name and the comma says nothing", "'A'x, B", "A, B, "},
             Case{"marks and backslashes cannot end a name", "O'Neil\\", "'O\\'Neil\\\\', "},
             Case{"empty names", ",, ,A,\"\",", "A, "},
             Case{"a style sheet's own characters stay in the quotes", "x; } body { color: red",
                  "'x; } body { color: red', "},
             Case{"line breaks would end a quoted name", "A\n;B", "'A ;B', "},
         }) {
        const std::string expected = families;
        const bool hasEnd = expected == "serif" || expected.ends_with("monospace");
        EXPECT_EQ(svgFontFamilies(String(requested).view()), hasEnd ? expected : expected + fallback) << why;
    }
}

TEST(Limits, FontFamily) {
    EXPECT_LT(svgFontFamilies(std::u32string(1'000'000, U'x')).size(), 1100U)
        << "it would stand on every text of a chart";
}

}  // namespace
}  // namespace VEXA
