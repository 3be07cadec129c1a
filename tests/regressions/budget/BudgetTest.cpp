// What a document may cost: memory in proportion to its elements, its text and its picture.

#include "tests/regressions/budget/Budget.h"

namespace VEXA::Testing {
namespace {

TEST(Budget, NoDocumentTakesMoreThanItsSizeAllows) {
    for (const RegressionDocument& document : regressionDocuments()) {
        expectWithinBudget(document, Picture::Vector, &Fuzz::svgSurface);
        expectWithinBudget(document, Picture::Vector, &Fuzz::displayListSurface);
    }
}

TEST(Budget, ALargePictureIsInMemoryOnce) {
    std::string plots;
    for (int i = 0; i < 5; ++i) {
        plots +=
            "<plot-area width='600' height='400'><category-axis/><value-axis min='0' max='99990' unit='1'>"
            "<display-values/><grid-lines type='line' stroke='red'/></value-axis>"
            "<bar-chart><serie><data-point category='a' value='1'/></serie></bar-chart></plot-area>";
    }
    expectWithinBudget({"half a million grid lines",
                        "<root xmlns='http://vexa-charts.org/2008/vx' width='600' height='400'>" + plots + "</root>"},
                       Picture::Vector, &Fuzz::svgSurface);
}

}  // namespace
}  // namespace VEXA::Testing
