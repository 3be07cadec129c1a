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
