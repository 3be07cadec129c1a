// Documents that once crashed or hung, or that come near a limit, and what the fuzz targets start from: on every
// surface each of them is painted, or refused with an error.

#include "tests/regressions/RegressionDocuments.h"

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

TEST(Regressions, TheFaultsOfPicturesAreFound) {
    const struct {
        const char *picture, *fault, *why;
    } lists[] = {
        {"{\"op\":\"text\",\"text\":\"a\\\"nan\",\"x\":-1e38}\n", "", "words of the document"},
        {"{\"text\":\"d\",\"fill\":\"inf\"}\n", "", "a word that is no name"},
        {"{\"x\":1,\"y\":nan}\n", "behind \"y\"", "no number"},
        {"{\"d\":\"M0 infL1 2\"}\n", "M0 infL1 2", "in a path"},
        {"{\"x\":1", "cut off", "half a line"},
        {"{\"text\":\"a\n", "without end", "half a text"},
    };
    for (const auto& c : lists) {
        const std::string fault = Fuzz::displayListFault(c.picture);
        EXPECT_EQ(fault.empty(), *c.fault == '\0') << c.why << ": " << fault;
        EXPECT_NE(fault.find(c.fault), fault.npos) << c.why << ": " << fault;
    }
    const struct {
        const char *content, *fault, *why;
    } pictures[] = {
        {"<g id='inf' fill='url(#inf)' font-family='nan'/>", "", "a reference to itself"},
        {"<g fill='url(#b)'/>", "reference to nothing", "an id that is not there"},
        {"<g fill='url(http://b)'/>", "external", "a paint from elsewhere"},
        {"<g id='a'/><g id='a'/>", "twice", "an id that is not the only one"},
        {"<script/>", "script", "code"},
        {"<g onload='x'/>", "script", "code in an attribute"},
        {"<g href='x.svg'/>", "external", "another file"},
        {"<g x='-nan'/>", "number", "no number"},
        {"<g>", "mismatched", "cut off"},
    };
    for (const auto& c : pictures) {
        const std::string fault = Fuzz::svgFault("<svg>" + std::string(c.content) + "</svg>");
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
        "<root xmlns=\"http://vexa-charts.org/2008/vx\" width=\"30%\"><pie x=\"7\"><slice "
        "caption=\"&#60;&#38;&#10;'\"/>"
        "<slice value=\"2\"/></pie><title value=\"\u00e9\"/></root>";
    EXPECT_EQ(Fuzz::documentOf(Fuzz::stepsOfDocument(document)), document);
}

}  // namespace
}  // namespace VEXA::Testing
