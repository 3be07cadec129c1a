#include "vexa/fonts/FontReport.h"

#include "tests/fonts/FontTestTools.h"
#include "vexa/support/core/Exception.h"

namespace VEXA::Testing {
namespace {

TEST(FontReport, TellsTheRunsInTheOrderOfTheText) {
    const FontReport report = reportOf("\u05D0\u05D1 (ab) 12");
    EXPECT_EQ(report.face, "Liberation Sans");
    EXPECT_EQ(runsOf(report),
              "[\u05D0\u05D1 (] Liberation Sans; [ab] Liberation Sans; [) ] Liberation Sans; [12] Liberation Sans; ");
    double width = 0;
    std::string directions;
    for (const ReportedRun& run : report.runs) {
        width += run.width;
        directions += run.isRightToLeft ? "R" : "L";
        EXPECT_EQ(run.glyphCount, run.text.length());
        EXPECT_EQ(run.file, "");
    }
    EXPECT_EQ(directions, "RLRL");
    EXPECT_DOUBLE_EQ(width, report.width);
    EXPECT_NEAR(report.runs[3].width, 2 * 1139 * 100 / 2048.0, 1e-6) << "two figures, in px of a font of 100 px";
}

TEST(FontReport, NeedsAServiceThatShapes) {
    EXPECT_THROW(describeFonts(*fixedWidthFontService(), fontOf("Arial"), "a"), UnreacheableCodeException);
}

}  // namespace
}  // namespace VEXA::Testing
