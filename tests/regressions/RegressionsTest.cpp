// Documents that once crashed or hung, or that come near a limit, and what the fuzz targets start from: on every
// surface each of them is painted, or refused with an error.

#include "tests/regressions/RegressionDocuments.h"
#include "tests/surfaces/SurfaceTesting.h"

namespace VEXA::Testing {
namespace {

TEST(Regressions, EveryDocumentIsPaintedOrRefusedOnEverySurface) {
    for (const RegressionDocument& document : regressionDocuments()) {
        const Fuzz::Painting list = Fuzz::paint(document.text, &Fuzz::displayListSurface);
        EXPECT_EQ(list.fault, "") << document.name;
        EXPECT_EQ(Fuzz::displayListFault(list.bytes), "") << document.name;
        const Fuzz::Painting svg = Fuzz::paint(document.text, &Fuzz::svgSurface);
        EXPECT_EQ(svg.refusal, list.refusal) << document.name << " is refused on one surface and painted on the other";
        EXPECT_EQ(svg.refusal == 0 ? Fuzz::svgFault(svg.bytes) : "", "") << document.name;
    }
}

/// Every operation with `number` in each place that takes one, and `text` in each place that takes a text.
void drawEverything(RenderContext& c, float number, const String& text) {
    const SmartPtr<RenderContext> surface(&c);
    for (int place = 0; place < 12; ++place) {
        const auto at = [&](int i, float usual) { return i == place ? number : usual; };
        const RenderContextScope scope(surface);
        if (place == 1) c.setClip(PathCommand::ellipse(number, 0, 1, number));
        if (place == 2) c.setClip(PathCommand::rectangle(number, 0, 1, number, 0, 0));
        if (place == 3) c.addTranslateTransform(number, 1);
        if (place == 4) c.addRotateTransform(number);
        if (place == 5) c.addScaleTransform(1, number);
        if (place >= 3 && place <= 5) c.setClip(PathCommand::rectangle(0, 0, 1, 1, 0, 0));
        const SmartPtr<GradientBrush> gradient = redToBlue(GradientUnits(place % 2));
        gradient->addStop(at(6, 1), colorOf(0), at(7, 1));
        gradient->setOpacity(at(8, 1));
        gradient->addMatrixTransform(at(9, 1), 0, 0, 1, 0, 0);
        const SmartPtr<GradientBrush> radial =
            make<RadialGradientBrush>(at(6, 5), at(7, 5), at(8, 5), at(9, 6), GradientUnits(), GradientSpreadMethod());
        radial->setStops(gradient->getStops());
        const SmartPtr<Stroke> stroke = make<Stroke>(radial, at(10, 2));
        stroke->setDashArray({at(6, 1), 2});
        stroke->setDashOffset(at(7, 1));
        stroke->setMiterLimit(at(8, 3));
        c.setFill(gradient);
        c.setStroke(stroke);
        c.setFont(fontOf(text, at(11, 12)));
        c.drawLine(at(6, 0), at(7, 0), at(8, 1), at(9, 1));
        c.drawRectangle(at(6, 0), at(7, 0), at(8, 1), at(9, 1), at(10, 0), at(11, 1));
        c.drawEllipse(at(6, 0), at(7, 0), at(8, 1), at(9, 1));
        c.drawPolygon({{at(6, 0), at(7, 0)}, {at(8, 1), at(9, 1)}, {5, 5}}, place % 2 == 0);
        c.drawText(text, 1000, at(6, 0), at(7, 0), at(8, 0), 0);
    }
}

/// Numbers that take a writer to its limits.
constexpr float kHostileNumbers[] = {0.0F,          -0.0F,          1.0F / 3, -1.0F,     1e9F,       1e20F,
                                     3.4028235e38F, -3.4028235e38F, 1e-45F,   kInfinity, -kInfinity, kNaN};

TEST(Regressions, PicturesAreWholeWhateverTheNumbers) {
    for (const float number : kHostileNumbers) {
        const Drawing draw = [number](RenderContext& c) { drawEverything(c, number, "\"}"); };
        EXPECT_EQ(Fuzz::svgFault(documentOf<SvgSurface>(draw)), "") << number;
        EXPECT_EQ(Fuzz::displayListFault(documentOf<DisplayListSurface>(draw)), "") << number;
    }
}

std::string faultOfElement(std::string_view element) {
    return Fuzz::svgFault("<svg>" + std::string(element) + "</svg>");
}

TEST(Regressions, TheFaultsOfPicturesAreFound) {
    const struct {
        std::string (*faultOf)(std::string_view);
        const char *picture, *fault, *why;
    } cases[] = {
        {Fuzz::displayListFault, "{\"op\":\"text\",\"text\":\"a\\\"nan\",\"x\":-1e38}\n", "", "words of the document"},
        {Fuzz::displayListFault, "{\"x\":1,\"y\":nan}\n", "behind \"y\"", "no number"},
        {Fuzz::displayListFault, "{\"d\":\"M0 infL1 2\"}\n", "M0 infL1 2", "in a path"},
        {Fuzz::displayListFault, "{\"x\":1", "cut off", "half a line"},
        {Fuzz::displayListFault, "{\"text\":\"a\n", "without end", "half a text"},
        {faultOfElement, "<g id='inf' fill='url(#inf)' font-family='nan'/>", "", "a reference to itself"},
        {faultOfElement, "<g fill='url(#b)'/>", "reference to nothing", "an id that is not there"},
        {faultOfElement, "<g fill='url(http://b)'/>", "external", "a paint from elsewhere"},
        {faultOfElement, "<g id='a'/><g id='a'/>", "twice", "an id that is not the only one"},
        {faultOfElement, "<script/>", "script", "code"},
        {faultOfElement, "<g onload='x'/>", "script", "code in an attribute"},
        {faultOfElement, "<g href='x.svg'/>", "external", "another file"},
        {faultOfElement, "<g x='-nan'/>", "number", "no number"},
        {faultOfElement, "<g>", "mismatched", "cut off"},
    };
    for (const auto& c : cases) {
        const std::string fault = c.faultOf(c.picture);
        EXPECT_EQ(fault.empty(), *c.fault == '\0') << c.why << ": " << fault;
        EXPECT_NE(fault.find(c.fault), fault.npos) << c.why << ": " << fault;
    }
}

TEST(DocumentTree, AnyBytesAreADocument) {
    const struct {
        std::vector<std::uint8_t> bytes;
        const char *content, *why;
    } cases[] = {
        {{}, "/>", "nothing"},
        {{1, 3}, "><legend/></root>", "the fourth child of a root"},
        {{1, 1, 1, 0}, "><pie><slice/></pie></root>", "a child of a child"},
        {{1, 1, 0, 0, 0, 0, 0, 0, 1, 4}, "><pie/><title/></root>", "more ends than starts"},
        {{1, 5, 0, 0, 2, 0, 0}, "><defs/></root>", "an attribute behind a child"},
        {{1}, "><plot-area/></root>", "half a step"},
    };
    const std::string start = "<root xmlns=\"http://vexa-charts.org/2008/vx\"";
    for (const auto& c : cases) EXPECT_EQ(Fuzz::documentOf(c.bytes), start + c.content) << c.why;
}

TEST(DocumentTree, ADocumentIsKeptWithItsTexts) {
    const std::string document =
        "<root xmlns=\"http://vexa-charts.org/2008/vx\" width=\"30%\"><pie x=\"7\"><slice caption=\"&#60;&#10;'\"/>"
        "<slice value=\"2\"/></pie><title value=\"\u00e9\"/></root>";
    EXPECT_EQ(Fuzz::documentOf(Fuzz::stepsOfDocument(document)), document);
}

}  // namespace
}  // namespace VEXA::Testing
