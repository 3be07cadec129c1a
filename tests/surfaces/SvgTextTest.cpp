#include <gtest/gtest.h>

#include <tuple>

#include "tests/surfaces/SurfaceTesting.h"
#include "vexa/surfaces/SvgFontFamily.h"

namespace VEXA {
namespace {

Drawing said(std::string text, int length = 1000, float spacing = 0) {
    return [=](RenderContext& c) { c.drawText(text, length, 1, 2, spacing, 0); };
}

Drawing inFont(void (*change)(Font&)) {
    return [change](RenderContext& c) {
        const SmartPtr<Font> font = fontOf("sans-serif", 12);
        change(*font);
        c.setFont(font);
        c.drawText("Ab", 2, 1, 2, 0, 0);
    };
}

Drawing under(const Matrix& matrix, float fontSize) {
    return [=](RenderContext& c) {
        DrawingState state = c.state();
        state.transform = matrix;
        state.font = fontOf("sans-serif", fontSize);
        c.restoreState(state);
        c.drawText("Ab", 2, 1, 2, 0.5F, 0);
    };
}

#define VEXA_FILLED R"( fill="#333333" font-size=")"
#define VEXA_TEXT(rest) R"(<text x="1" y="2")" VEXA_FILLED "12\"" rest "</text>"
#define VEXA_SPACED(content) VEXA_TEXT(" xml:space=\"preserve\">" content)

TEST(SvgText, IsWritten) {
    const DrawingCase cases[] = {
        {"empty", said(""), ""},
        {"markup stays text", said("</text><script>alert(\"1\")</script>&amp;']]>"),
         VEXA_TEXT(">&lt;/text&gt;&lt;script&gt;alert(&quot;1&quot;)&lt;/script&gt;&amp;amp;&#39;]]&gt;")},
        {"single spaces within need no care", said("a b c"), VEXA_TEXT(">a b c")},
        {"two in a row are kept", said("a  b"), VEXA_SPACED("a  b")},
        {"one in front", said(" a"), VEXA_SPACED(" a")},
        {"control characters are spaces, also beside one", said(std::string("a\0b \nc\x7f\u0085", 9)),
         VEXA_SPACED("a b  c  ")},
        {"what XML forbids is replaced", said("a\ufffe\uffff\ufffd"), VEXA_TEXT(">a\ufffd\ufffd\ufffd")},
        {"the first characters, and only their spaces count", said("\U0001f44db  ", 2), VEXA_TEXT(">\U0001f44db")},
        {"fewer than none", said("ab", -1), ""},
        {"spacing", said("ab", 2, -0.5F), VEXA_TEXT(" letter-spacing=\"-0.5\">ab")},
        {"a text that begins in Hebrew ends at x", said("(3) \u05e9\u05dc\u05d5\u05dd abc"),
         VEXA_TEXT(" direction=\"rtl\" text-anchor=\"end\">(3) \u05e9\u05dc\u05d5\u05dd abc")},
        {"the first characters alone tell the direction", said("1 \u05de", 2), VEXA_SPACED("1 ")},
        {"no font", [](auto& c) { c.setFont(nullptr), said("Ab")(c); }, ""},
        {"no fill", [](auto& c) { c.setFill(nullptr), said("Ab")(c); }, ""},
        {"a negative size shows nothing", inFont([](Font& f) { f.setFontSize(-12); }), ""},
        {"a size is cut", inFont([](Font& f) { f.setFontSize(kInfinity); }),
         R"(<text x="1" y="2")" VEXA_FILLED R"(10000">Ab</text>)"},
        {"bold", inFont([](Font& f) { f.setFontWeight(DrawingFontWeight::Bold); }),
         VEXA_TEXT(" font-weight=\"bold\">Ab")},
        {"italic", inFont([](Font& f) { f.setFontStyle(DrawingFontStyle::Italic); }),
         VEXA_TEXT(" font-style=\"italic\">Ab")},
        {"a family of the document, which cannot leave its attribute",
         inFont([](Font& f) { f.setFontFamily("x\" onload=\"alert(1)"); }),
         VEXA_TEXT(" font-family=\"&#39;x&quot; onload=&quot;alert(1)&#39;, Liberation Sans, Arial, Helvetica, "
                   "sans-serif\">Ab")},
        {"under an enlargement, turned as well, letters are set in their size on the page",
         under(Matrix().translate(100, 50).rotate(90).scale(10, 10), 1.25F),
         R"svg(<text x="10" y="20" transform="matrix(0 1 -1 0 100 50)")svg" VEXA_FILLED
         R"(12.5" letter-spacing="5">Ab</text>)"},
        {"an uneven one stays in the transform", under(Matrix().scale(4, 8), 12),
         R"svg(<text x="1" y="2" transform="matrix(4 0 0 8 0 0)")svg" VEXA_FILLED
         R"(12" letter-spacing="0.5">Ab</text>)"},
    };
    for (const DrawingCase& c : cases) {
        const std::string body = svgBody([&c](RenderContext& context) {
            context.setFont(fontOf("sans-serif", 12));
            painted(solid(0x333333), pen(0xFF0000), c.draw)(context);  // texts are only filled
        });
        const std::string element = c.expected;
        EXPECT_EQ(body, element.empty() ? "" : element + "\n") << c.why;
    }
}

TEST(SvgText, AFamilyAppliesToItsOwnTextsOnly) {
    const std::string body = svgBody([](RenderContext& c) {
        c.setFill(solid(0));
        for (const char* family : {"Georgia", "Georgia", "sans-serif", "monospace"}) {
            c.setFont(fontOf(family, 12));
            c.drawText("a", 1, 0, 0, 0, 0);
        }
    });
    const std::string start = R"(<text x="0" y="0" fill="#000000" font-size="12")";
    const std::string georgia = start + R"( font-family="Georgia, Liberation Sans, Arial, Helvetica, sans-serif")";
    EXPECT_EQ(body, georgia + ">a</text>\n" + georgia + ">a</text>\n" + start + ">a</text>\n" + start +
                        " font-family=\"monospace\">a</text>\n");
}

TEST(SvgFontFamily, ListsOfFamilies) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"the default by name, in any case", " Sans-Serif ", ""},
        {"a list; the default comes in the place of its end", "Fira Sans , sans-serif", "Fira Sans, "},
        {"what follows a generic family is never used", "Noto Sans,serif, Fira", "Noto Sans, serif"},
        {"a word that starts with a figure is no plain word", "3270 Condensed", "'3270 Condensed', "},
        {"two spaces would become one", "A  B", "'A  B', "},
        {"letters of any script are plain", "\u6e38\u660e\u671d", "\u6e38\u660e\u671d, "},
        {"quoted names keep their commas, lose their marks", "\"A, B\" , C", "'A, B', C, "},
        {"marks and backslashes cannot end a name", "O'Neil\\", "'O\\'Neil\\\\', "},
        {"a style sheet's own characters stay in the quotes", "x; } body { color: red", "'x; } body { color: red', "},
        {"line breaks would end a quoted name", "A\n;B", "'A ;B', "},
    };
    for (const auto& [why, requested, families] : cases) {
        const std::string expected = families;
        const std::string end = expected.ends_with("serif") ? "" : "Liberation Sans, Arial, Helvetica, sans-serif";
        EXPECT_EQ(svgFontFamilies(String(requested).view()), expected + end) << why;
    }
}

TEST(Limits, FontFamily) {
    EXPECT_LT(svgFontFamilies(std::u32string(1'000'000, U'x')).size(), 1100U)
        << "it would stand on every text of a chart";
}

}  // namespace
}  // namespace VEXA
