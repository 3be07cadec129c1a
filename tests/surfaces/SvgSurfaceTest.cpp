#include "vexa/surfaces/SvgSurface.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/surfaces/SurfaceTesting.h"
#include "vexa/support/core/Exception.h"

namespace VEXA {
namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

TEST(SvgSurface, TheRootSaysHowLargeAndWhatItIs) {
    EXPECT_EQ(
        documentOf<SvgSurface>([](RenderContext&) {}),
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"200\" height=\"100\" viewBox=\"0 0 200 100\" role=\"img\" "
        "font-family=\"Liberation Sans, Arial, Helvetica, sans-serif\" fill-rule=\"evenodd\" stroke-miterlimit=\"2\">\n"
        "</svg>\n");
}

TEST(SvgSurface, TheDocumentIsToldToReaders) {
    const std::string document =
        documentOf<SvgSurface>([](RenderContext&) {}, {"Sales <2024>", "Rising & \"fast\"", "de\"><script>"});
    EXPECT_NE(document.find(" lang=\"de&quot;&gt;&lt;script&gt;\" xml:lang=\"de&quot;&gt;&lt;script&gt;\""),
              std::string::npos);
    EXPECT_NE(document.find(">\n<title>Sales &lt;2024&gt;</title>\n<desc>Rising &amp; &quot;fast&quot;</desc>\n"),
              std::string::npos);
}

struct ElementCase {
    const char* why;
    Drawing draw;
    const char* element;
};

class Elements : public testing::TestWithParam<ElementCase> {};

TEST_P(Elements, AreWritten) {
    const std::string element = GetParam().element;
    EXPECT_EQ(svgBody(GetParam().draw), element.empty() ? "" : element + "\n") << GetParam().why;
}

Drawing filled(const Drawing& draw) {
    return [draw](RenderContext& c) {
        c.setFill(solid(0xFF8000));
        draw(c);
    };
}

Drawing stroked(const Drawing& draw) {
    return [draw](RenderContext& c) {
        c.setStroke(pen(0x102030));
        draw(c);
    };
}

INSTANTIATE_TEST_SUITE_P(
    Shapes, Elements,
    testing::Values(
        ElementCase{"a line, rounded to hundredths", stroked([](auto& c) { c.drawLine(0, 1.005F, 2.346F, -0.001F); }),
                    R"(<line x1="0" y1="1" x2="2.35" y2="0" stroke="#102030"/>)"},
        ElementCase{"a line has no inside", filled(stroked([](auto& c) { c.drawLine(0, 1, 2, 3); })),
                    R"(<line x1="0" y1="1" x2="2" y2="3" stroke="#102030"/>)"},
        ElementCase{"a rectangle", filled([](auto& c) { c.drawRectangle(1, 2, 30, 40, 0, 0); }),
                    R"(<rect x="1" y="2" width="30" height="40" fill="#ff8000"/>)"},
        ElementCase{"only outlined", stroked([](auto& c) { c.drawRectangle(1, 2, 30, 40, 0, 0); }),
                    R"(<rect x="1" y="2" width="30" height="40" fill="none" stroke="#102030"/>)"},
        ElementCase{"rounded", filled([](auto& c) { c.drawRectangle(1, 2, 30, 40, 3, 4); }),
                    R"(<rect x="1" y="2" width="30" height="40" rx="3" ry="4" fill="#ff8000"/>)"},
        ElementCase{"one radius alone would round both ways in SVG",
                    filled([](auto& c) { c.drawRectangle(1, 2, 30, 40, 3, 0); }),
                    R"(<rect x="1" y="2" width="30" height="40" fill="#ff8000"/>)"},
        ElementCase{"negative sizes, an error in SVG, reach to the other side",
                    filled([](auto& c) { c.drawRectangle(31, 42, -30, -40, 0, 0); }),
                    R"(<rect x="1" y="2" width="30" height="40" fill="#ff8000"/>)"},
        ElementCase{"a rectangle without height is an outline; as a rect it would not show",
                    filled(stroked([](auto& c) { c.drawRectangle(1, 2, 30, 0, 0, 0); })),
                    R"(<path d="M1 2L31 2L31 2L1 2Z" fill="none" stroke="#102030"/>)"},
        ElementCase{"and only filled it is nothing", filled([](auto& c) { c.drawRectangle(1, 2, 30, 0, 0, 0); }), ""},
        ElementCase{"one of many thin bars keeps its width",
                    filled([](auto& c) { c.drawRectangle(1, 2, 0.0042F, 40, 0, 0); }),
                    R"(<rect x="1" y="2" width="0.0042" height="40" fill="#ff8000"/>)"},
        ElementCase{"a circle", filled([](auto& c) { c.drawEllipse(1, 2, 3, 3); }),
                    R"(<circle cx="1" cy="2" r="3" fill="#ff8000"/>)"},
        ElementCase{"an ellipse", filled([](auto& c) { c.drawEllipse(1, 2, 3, 4); }),
                    R"(<ellipse cx="1" cy="2" rx="3" ry="4" fill="#ff8000"/>)"},
        ElementCase{"an ellipse without extent, filled, is nothing", filled([](auto& c) { c.drawEllipse(1, 2, 0, 4); }),
                    ""},
        ElementCase{"a path", filled([](auto& c) {
                        c.drawPolygon({{0, 0}, {10, 0}, {10, 5.5F}}, true);
                    }),
                    R"(<path d="M0 0L10 0L10 5.5Z" fill="#ff8000"/>)"},
        ElementCase{"an open polygon is not filled", filled(stroked([](auto& c) {
                        c.drawPolygon({{0, 0}, {10, 0}}, false);
                    })),
                    R"(<path d="M0 0L10 0" fill="none" stroke="#102030"/>)"},
        ElementCase{"an open path is filled", filled([](auto& c) {
                        c.drawPath(PathCommand::polygon({{0, 0}, {10, 0}, {10, 5}}, false));
                    }),
                    R"(<path d="M0 0L10 0L10 5" fill="#ff8000"/>)"},
        ElementCase{"an empty path", filled([](auto& c) { c.drawPath(make<Path>()); }), ""},
        ElementCase{"neither fill nor stroke", [](auto& c) { c.drawRectangle(1, 2, 30, 40, 0, 0); }, ""},
        ElementCase{"brushes without a colour",
                    [](auto& c) {
                        c.setFill(make<SolidColorBrush>(nullptr));
                        c.setStroke(make<Stroke>(nullptr, 1.0F));
                        c.drawEllipse(1, 2, 3, 4);
                    },
                    ""}));

INSTANTIATE_TEST_SUITE_P(
    Places, Elements,
    testing::Values(
        ElementCase{"a translation", filled([](auto& c) {
                        c.addTranslateTransform(10.126F, -5);
                        c.drawEllipse(0, 0, 1, 1);
                    }),
                    R"svg(<circle cx="0" cy="0" r="1" transform="translate(10.13 -5)" fill="#ff8000"/>)svg"},
        ElementCase{
            "a turn needs all digits, or long texts would end elsewhere", filled([](auto& c) {
                c.addTranslateTransform(10, 20);
                c.addRotateTransform(30);
                c.drawEllipse(0, 0, 1, 1);
            }),
            R"svg(<circle cx="0" cy="0" r="1" transform="matrix(0.8660254 0.5 -0.5 0.8660254 10 20)" fill="#ff8000"/>)svg"},
        ElementCase{
            "under an enlargement a hundredth is a whole px", filled([](auto& c) {
                c.addScaleTransform(100, 100);
                c.drawRectangle(0.125F, 0.25F, 1.0625F, 0.5F, 0, 0);
            }),
            R"svg(<rect x="0.125" y="0.25" width="1.0625" height="0.5" transform="matrix(100 0 0 100 0 0)" fill="#ff8000"/>)svg"},
        ElementCase{"a transform that is not finite leaves no place", filled([](auto& c) {
                        c.addScaleTransform(kInfinity, 1);
                        c.drawEllipse(1, 1, 1, 1);
                        c.drawPolygon({{0, 0}, {1, 1}, {1, 0}}, true);
                    }),
                    ""},
        ElementCase{"coordinates are cut", filled([](auto& c) { c.drawRectangle(-1e20F, 0, kInfinity, 5, 0, 0); }),
                    R"(<rect x="-1000000000" y="0" width="1000000000" height="5" fill="#ff8000"/>)"}));

template <class Change>
Drawing strokedWith(Change change) {
    return [change](RenderContext& c) {
        const SmartPtr<Stroke> stroke = pen(0);
        change(*stroke);
        c.setStroke(stroke);
        c.drawPath(PathCommand::polygon({{0, 0}, {9, 0}, {9, 9}}, false));
    };
}

#define VEXA_STROKED(attributes) R"(<path d="M0 0L9 0L9 9" fill="none" stroke="#000000")" attributes "/>"

INSTANTIATE_TEST_SUITE_P(
    Strokes, Elements,
    testing::Values(
        ElementCase{"what SVG or the root has anyway is left out", strokedWith([](Stroke&) {}), VEXA_STROKED("")},
        ElementCase{"width", strokedWith([](Stroke& s) { s.setThickness(6.66F); }),
                    VEXA_STROKED(" stroke-width=\"6.66\"")},
        ElementCase{"a thin line is not rounded to none", strokedWith([](Stroke& s) { s.setThickness(0.0042F); }),
                    VEXA_STROKED(" stroke-width=\"0.0042\"")},
        ElementCase{"opacity", strokedWith([](Stroke& s) { s.setOpacity(0.125F); }),
                    VEXA_STROKED(" stroke-opacity=\"0.125\"")},
        ElementCase{"caps, joins; a round join needs no limit", strokedWith([](Stroke& s) {
                        s.setStartLineCap(LineCap::Square);
                        s.setLineJoin(LineJoin::Round);
                        s.setMiterLimit(9);
                    }),
                    VEXA_STROKED(" stroke-linecap=\"square\" stroke-linejoin=\"round\"")},
        ElementCase{"round and bevel", strokedWith([](Stroke& s) {
                        s.setStartLineCap(LineCap::Round);
                        s.setLineJoin(LineJoin::Bevel);
                    }),
                    VEXA_STROKED(" stroke-linecap=\"round\" stroke-linejoin=\"bevel\"")},
        ElementCase{"miter limit", strokedWith([](Stroke& s) { s.setMiterLimit(4); }),
                    VEXA_STROKED(" stroke-miterlimit=\"4\"")},
        ElementCase{"a limit below 1 is an error in SVG; 1 cuts every corner too",
                    strokedWith([](Stroke& s) { s.setMiterLimit(0); }), VEXA_STROKED(" stroke-miterlimit=\"1\"")},
        ElementCase{"a limit that is no number", strokedWith([](Stroke& s) { s.setMiterLimit(kNaN); }),
                    VEXA_STROKED(" stroke-miterlimit=\"1\"")},
        ElementCase{"dashes, with an offset", strokedWith([](Stroke& s) {
                        s.setDashArray({4, 1.5F, 1});
                        s.setDashOffset(-2.5F);
                    }),
                    VEXA_STROKED(" stroke-dasharray=\"4 1.5 1\" stroke-dashoffset=\"-2.5\"")},
        ElementCase{"an offset without dashes says nothing", strokedWith([](Stroke& s) { s.setDashOffset(2); }),
                    VEXA_STROKED("")},
        ElementCase{"dashes that SVG would refuse", strokedWith([](Stroke& s) {
                        s.setDashArray({4, -1});
                    }),
                    VEXA_STROKED("")}));

TEST(SvgSurface, FillOpacity) {
    EXPECT_EQ(svgBody([](RenderContext& c) {
                  c.setFill(solid(0xFF0000, 0.3F));
                  c.drawEllipse(1, 1, 1, 1);
              }),
              "<circle cx=\"1\" cy=\"1\" r=\"1\" fill=\"#ff0000\" fill-opacity=\"0.3\"/>\n");
}

TEST(SvgSurface, TheSameOperationsGiveTheSameBytes) {
    const Drawing draw = [](RenderContext& c) {
        c.setClip(PathCommand::ellipse(5, 5, 5, 5));
        c.setFill(redToBlue());
        c.drawRectangle(0, 0, 9, 9, 0, 0);
    };
    EXPECT_EQ(documentOf<SvgSurface>(draw), documentOf<SvgSurface>(draw));
}

TEST(SvgSurface, NothingIsWrittenBeforeTheEnd) {
    const SmartPtr<IO::MemoryStream> stream = make<IO::MemoryStream>();
    {
        const SmartPtr<SvgSurface> surface = make<SvgSurface>(stream);
        surface->beginDocument();
        surface->beginPage({10, 10});
        surface->setFill(solid(0));
        surface->drawEllipse(1, 1, 1, 1);
        surface->endPage();
    }
    EXPECT_EQ(stream->bytes(), "") << "a render that fails before endDocument leaves no half document";
}

TEST(SvgSurface, ADocumentHasOnePage) {
    const SmartPtr<SvgSurface> surface = make<SvgSurface>(make<IO::MemoryStream>());
    surface->beginDocument();
    surface->beginPage({10, 10});
    surface->endPage();
    EXPECT_THROW(surface->beginPage({10, 10}), UnreacheableCodeException);
    surface->beginDocument();
    EXPECT_NO_THROW(surface->beginPage({10, 10})) << "a new document";
}

TEST(SvgSurface, ANewDocumentForgetsTheOneBefore) {
    const SmartPtr<IO::MemoryStream> stream = make<IO::MemoryStream>();
    const SmartPtr<SvgSurface> surface = make<SvgSurface>(stream);
    std::string documents[2];
    for (std::string& document : documents) {
        surface->beginDocument();
        surface->beginPage({10, 10});
        surface->setFill(redToBlue());
        surface->drawEllipse(1, 1, 1, 1);
        surface->endPage();
        surface->endDocument();
        document = stream->takeBytes();
    }
    EXPECT_EQ(documents[0], documents[1]);
}

TEST(SvgSurface, WithoutAPageItHasNoSizeOfItsOwn) {
    const SmartPtr<IO::MemoryStream> stream = make<IO::MemoryStream>();
    const SmartPtr<SvgSurface> surface = make<SvgSurface>(stream);
    surface->setFill(solid(0));
    surface->drawEllipse(1, 2, 3, 3);
    surface->endDocument();
    EXPECT_NE(stream->bytes().find("<circle cx=\"1\" cy=\"2\" r=\"3\""), std::string::npos);
    EXPECT_EQ(stream->bytes().find("width="), std::string::npos);
}

TEST(SvgSurface, APageSizeIsAPositiveNumber) {
    const SmartPtr<IO::MemoryStream> stream = make<IO::MemoryStream>();
    const SmartPtr<SvgSurface> surface = make<SvgSurface>(stream);
    surface->beginDocument();
    surface->beginPage({-5, kNaN});
    surface->endDocument();
    EXPECT_NE(stream->bytes().find("width=\"0\" height=\"0\" viewBox=\"0 0 0 0\""), std::string::npos)
        << stream->bytes();
}

}  // namespace
}  // namespace VEXA
