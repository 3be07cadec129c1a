#include "vexa/surfaces/SvgSurface.h"

#include <gtest/gtest.h>

#include <tuple>

#include "tests/surfaces/SurfaceTesting.h"
#include "vexa/support/core/Exception.h"

namespace VEXA {
namespace {

TEST(SvgSurface, TheRootSaysHowLargeAndWhatItIs) {
    EXPECT_EQ(
        documentOf<SvgSurface>([](RenderContext&) {}),
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"200\" height=\"100\" viewBox=\"0 0 200 100\" role=\"img\" "
        "direction=\"ltr\" font-family=\"Liberation Sans, Arial, Helvetica, sans-serif\" fill-rule=\"evenodd\" "
        "stroke-miterlimit=\"2\">\n"
        "</svg>\n");
}

TEST(SvgSurface, TheDocumentIsToldToReaders) {
    const std::string document =
        documentOf<SvgSurface>([](RenderContext&) {}, {"Sales <2024>", "Rising & \"fast\"", "de\"><script>"});
    for (const char* told : {" lang=\"de&quot;&gt;&lt;script&gt;\" xml:lang=\"de&quot;&gt;&lt;script&gt;\"",
                             ">\n<title>Sales &lt;2024&gt;</title>\n<desc>Rising &amp; &quot;fast&quot;</desc>\n"})
        EXPECT_NE(document.find(told), std::string::npos) << told;
}

void expectElements(const DrawingCase& c) {
    const std::string element = c.expected;
    EXPECT_EQ(svgBody(c.draw), element.empty() ? "" : element + "\n") << c.why;
}

Drawing filled(const Drawing& draw) { return painted(solid(0xFF8000), nullptr, draw); }
Drawing stroked(const Drawing& draw) { return painted(nullptr, pen(0x102030), draw); }
Drawing both(const Drawing& draw) { return painted(solid(0xFF8000), pen(0x102030), draw); }

SmartPtr<Stroke> penWith(LineCap cap) {
    const SmartPtr<Stroke> stroke = pen(0x102030);
    stroke->setStartLineCap(cap);
    return stroke;
}

void point(RenderContext& c) { c.drawPolygon({{5, 5}}, false); }
void openPath(RenderContext& c) { c.drawPath(PathCommand::polygon({{0, 0}, {9, 0}, {9, 9}}, false)); }

TEST(SvgSurface, Shapes) {
    const DrawingCase cases[] = {
        {"a line, rounded to hundredths, has no inside", both([](auto& c) { c.drawLine(0, 1.005F, 2.346F, -0.001F); }),
         R"(<line x1="0" y1="1" x2="2.35" y2="0" stroke="#102030"/>)"},
        {"only outlined", stroked([](auto& c) { c.drawRectangle(1, 2, 30, 40, 0, 0); }),
         R"(<rect x="1" y="2" width="30" height="40" fill="none" stroke="#102030"/>)"},
        {"rounded", filled([](auto& c) { c.drawRectangle(1, 2, 30, 40, 3, 4); }),
         R"(<rect x="1" y="2" width="30" height="40" rx="3" ry="4" fill="#ff8000"/>)"},
        {"one radius alone would round both ways in SVG", filled([](auto& c) { c.drawRectangle(1, 2, 30, 40, 3, 0); }),
         R"(<rect x="1" y="2" width="30" height="40" fill="#ff8000"/>)"},
        {"negative sizes, an error in SVG", filled([](auto& c) { c.drawRectangle(31, 42, -30, -40, 0, 0); }),
         R"(<rect x="1" y="2" width="30" height="40" fill="#ff8000"/>)"},
        {"without height it is an outline; a rect would not show",
         both([](auto& c) { c.drawRectangle(1, 2, 30, 0, 0, 0); }),
         R"(<path d="M1 2L31 2L31 2L1 2Z" fill="none" stroke="#102030"/>)"},
        {"one of many thin bars keeps its width", filled([](auto& c) { c.drawRectangle(1, 2, 0.0042F, 40, 0, 0); }),
         R"(<rect x="1" y="2" width="0.0042" height="40" fill="#ff8000"/>)"},
        {"a circle", painted(solid(0xFF0000, 0.3F), nullptr, [](auto& c) { c.drawEllipse(1, 2, 3, 3); }),
         R"(<circle cx="1" cy="2" r="3" fill="#ff0000" fill-opacity="0.3"/>)"},
        {"an ellipse", filled([](auto& c) { c.drawEllipse(1, 2, 3, -4); }),
         R"(<ellipse cx="1" cy="2" rx="3" ry="4" fill="#ff8000"/>)"},
        {"without extent, filled, it is nothing", filled([](auto& c) { c.drawEllipse(1, 2, 0, 4); }), ""},
        {"a point, which a round cap shows", painted(nullptr, penWith(LineCap::Round), point),
         R"(<path d="M5 5L5 5" fill="none" stroke="#102030" stroke-linecap="round"/>)"},
        {"a square has no direction there", painted(nullptr, penWith(LineCap::Square), point), ""},
        {"nor on a line without length",
         painted(nullptr, penWith(LineCap::Square), [](auto& c) { c.drawLine(5, 5, 5, 5); }), ""},
        {"an open path is filled", filled(openPath), R"(<path d="M0 0L9 0L9 9" fill="#ff8000"/>)"},
        {"an empty path", both([](auto& c) { c.drawPath(make<Path>()); }), ""},
        {"without a colour", painted(make<SolidColorBrush>(nullptr), make<Stroke>(nullptr, 1.0F), openPath), ""},
    };
    for (const DrawingCase& c : cases) expectElements(c);
}

Drawing circleUnder(const Matrix& matrix) {
    return filled([matrix](RenderContext& c) {
        DrawingState state = c.state();
        state.transform = matrix;
        c.restoreState(state);
        c.drawEllipse(0, 0, 0.125F, 0.125F);
    });
}

#define VEXA_CIRCLE(radius, transform) \
    R"(<circle cx="0" cy="0" r=")" radius R"(" transform=")" transform R"(" fill="#ff8000"/>)"

TEST(SvgSurface, Places) {
    const DrawingCase cases[] = {
        {"a translation", circleUnder(Matrix().translate(10.126F, -5)), VEXA_CIRCLE("0.13", "translate(10.13 -5)")},
        {"a turn needs all digits, or long texts would end elsewhere", circleUnder(Matrix().rotate(30)),
         VEXA_CIRCLE("0.13", "matrix(0.8660254 0.5 -0.5 0.8660254 0 0)")},
        {"under an enlargement a hundredth is a whole px", circleUnder(Matrix().scale(100, 100)),
         VEXA_CIRCLE("0.125", "matrix(100 0 0 100 0 0)")},
        {"a transform that is not finite leaves no place", circleUnder(Matrix().scale(kInfinity, 1)), ""},
        {"coordinates are cut", filled([](auto& c) { c.drawRectangle(-1e20F, 0, 1e30F, 5, 0, 0); }),
         R"(<rect x="-1000000000" y="0" width="1000000000" height="5" fill="#ff8000"/>)"},
    };
    for (const DrawingCase& c : cases) expectElements(c);
}

TEST(SvgSurface, WhatHasNoPlaceLeavesNoMark) {
    for (const float number : {kNaN, kInfinity, -kInfinity}) {
        const Drawing draw = both([number](RenderContext& c) {
            c.drawLine(0, 0, 5, number);
            c.drawRectangle(number, 0, 5, 5, 0, 0);
            c.drawRectangle(0, 0, 5, number, 0, 0);
            c.drawEllipse(0, number, 5, 5);
            c.drawEllipse(0, 0, number, 5);
            c.drawPolygon({{0, 0}, {number, 5}, {5, 5}}, true);
            c.setFont(fontOf("x", 12));
            c.drawText("a", 1, number, 0, 0, 0);
        });
        expectElements({"each of them", draw, ""});
    }
}

TEST(SvgSurface, Strokes) {
    const std::tuple<const char*, void (*)(Stroke&), const char*> cases[] = {
        {"what SVG or the root has anyway is left out", [](Stroke&) {}, ""},
        {"a thin line is not rounded to none", [](Stroke& s) { s.setThickness(0.0042F); }, R"( stroke-width="0.0042")"},
        {"opacity", [](Stroke& s) { s.setOpacity(0.125F); }, R"( stroke-opacity="0.125")"},
        {"bevel", [](Stroke& s) { s.setLineJoin(LineJoin::Bevel); }, R"( stroke-linejoin="bevel")"},
        {"miter limit", [](Stroke& s) { s.setMiterLimit(4); }, R"( stroke-miterlimit="4")"},
        {"below 1 it is an error; 1 cuts too", [](Stroke& s) { s.setMiterLimit(0); }, R"( stroke-miterlimit="1")"},
        {"no number", [](Stroke& s) { s.setMiterLimit(kNaN); }, R"( stroke-miterlimit="1")"},
        {"dashes, with an offset",
         [](Stroke& s) {
             s.setDashArray({4, 1.5F, 1});
             s.setDashOffset(-2.5F);
         },
         R"( stroke-dasharray="4 1.5 1" stroke-dashoffset="-2.5")"},
        {"an offset without dashes says nothing", [](Stroke& s) { s.setDashOffset(2); }, ""},
    };
    for (const auto& [why, change, attributes] : cases) {
        const SmartPtr<Stroke> stroke = pen(0);
        change(*stroke);
        const std::string start = R"(<path d="M0 0L9 0L9 9" fill="none" stroke="#000000")";
        EXPECT_EQ(svgBody(painted(nullptr, stroke, openPath)), start + attributes + "/>\n") << why;
    }
}

class SvgDocuments : public testing::Test {
protected:
    SmartPtr<IO::MemoryStream> stream = make<IO::MemoryStream>();
    SmartPtr<SvgSurface> surface = make<SvgSurface>(stream);
};

TEST_F(SvgDocuments, AreWrittenAtTheirEndAndForgotten) {
    std::string documents[2];
    for (std::string& document : documents) {
        surface->beginDocument();
        surface->beginPage({10, 10});
        surface->setClip(PathCommand::ellipse(5, 5, 5, 5));
        surface->setFill(redToBlue());
        surface->drawEllipse(1, 1, 1, 1);
        surface->endPage();
        EXPECT_THROW(surface->beginPage({10, 10}), UnreacheableCodeException) << "a document has one page";
        EXPECT_EQ(stream->bytes(), "") << "a render that fails before endDocument leaves no half document";
        surface->endDocument();
        document = stream->takeBytes();
        surface->restoreState({});
    }
    EXPECT_EQ(documents[0], documents[1]) << "the same operations give the same bytes";
}

TEST_F(SvgDocuments, HaveTheSizeOfTheirPage) {
    surface->setFill(solid(0));
    surface->drawEllipse(1, 2, 3, 3);
    surface->endDocument();
    EXPECT_NE(stream->bytes().find("<circle cx=\"1\" cy=\"2\" r=\"3\""), std::string::npos);
    EXPECT_EQ(stream->takeBytes().find("width="), std::string::npos) << "without a page none";
    surface->beginDocument();
    surface->beginPage({-5, kNaN});
    surface->endDocument();
    EXPECT_NE(stream->bytes().find("width=\"0\" height=\"0\" viewBox=\"0 0 0 0\""), std::string::npos);
}

}  // namespace
}  // namespace VEXA
