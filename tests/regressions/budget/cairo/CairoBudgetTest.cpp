#include "tests/regressions/budget/Budget.h"
#include "tests/sweeps/Attacks.h"
#include "vexa/surfaces/cairo/CairoSurface.h"

namespace VEXA::Testing {
namespace {

SmartPtr<RenderContext> png(SmartPtr<IO::Stream> stream, SizeF) { return CairoSurface::png(std::move(stream)); }
SmartPtr<RenderContext> pdf(SmartPtr<IO::Stream> stream, SizeF) { return CairoSurface::pdf(std::move(stream)); }

std::string root(const std::string& attributes, const std::string& content) {
    return "<root xmlns='http://vexa-charts.org/2008/vx' theme='none' " + attributes + ">" + content + "</root>";
}

std::string plot(const std::string& attributes, const std::string& charts) {
    return "<plot-area " + attributes + "><category-axis/><value-axis/>" + charts + "</plot-area>";
}

std::string points(int count) {
    std::string all;
    for (int i = 0; i < count; ++i)
        all += "<data-point category='" + std::to_string(i) + "' value='" + std::to_string(i % 7) + "'/>";
    return all;
}

std::string stripes(int count) {
    std::string all = "<defs><linear-gradient id='g'>";
    for (int i = 0; i < count; ++i)
        all += "<stop offset='" + std::to_string(static_cast<double>(i) / count) + "' stop-color='" +
               (i % 2 == 0 ? "red" : "blue") + "'/>";
    return all + "</linear-gradient></defs>";
}

TEST(Budget, NoDocumentTakesMoreAsPngOrPdf) {
    std::vector<RegressionDocument> documents = regressionDocuments();
    for (const Attack& attack : attacks()) documents.push_back({attack.name, attack.document()});
    for (const RegressionDocument& document : documents) {
        expectWithinBudget(document, Picture::Png, &png);
        expectWithinBudget(document, Picture::Pdf, &pdf);
    }
}

TEST(Budget, ALineOverALargePngTakesAByteMoreForEachPixel) {
    const std::string line = "<line-chart><serie stroke='red'>" + points(300) + "</serie></line-chart>";
    expectWithinBudget({"100 megapixels", root("width='10000' height='10000'", plot("", line))}, Picture::Png, &png);
}

TEST(Budget, APdfTakesMoreForWhatIsOnItsPage) {
    const std::string bars = "<bar-chart><serie fill='red' stroke='blue'>" + points(20'000) + "</serie></bar-chart>";
    std::string slices;
    for (int i = 0; i < 6000; ++i) slices += "<slice value='1' fill='url(#g)' stroke='url(#g)'/>";
    const std::string page = "width='900' height='600'";
    expectWithinBudget(
        {"areas and outlines", root(page, plot("aspect-3d-view='true' aspect-3d-chart-depth='5'", bars))}, Picture::Pdf,
        &pdf);
    expectWithinBudget({"stops", root(page, stripes(256) + "<pie>" + slices + "</pie>")}, Picture::Pdf, &pdf);
}

}  // namespace
}  // namespace VEXA::Testing
