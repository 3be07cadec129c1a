#include "tests/engine/PlotTestTools.h"

namespace VEXA::Testing {
namespace {

/// A plot with those axes (attributes) and charts.
std::string plot(const std::string& category, const std::string& value, const std::string& charts) {
    return fixedPlot("", "<category-axis " + category + "/><value-axis " + value + "/>" + charts);
}

std::string barChart(const std::string& grouping, const std::vector<std::string>& series) {
    std::string text = "<bar-chart grouping='" + grouping + "'>";
    for (const std::string& data : series) text += "<serie>" + points(data) + "</serie>";
    return text + "</bar-chart>";
}

/// "categories | values" of what the axes show after the plot has measured its data.
std::string valuesOf(const std::string& xml) {
    const auto root = load(xml);
    VexaRenderContext context(make<NullSurface>(), 400, 300);
    std::string text;
    for (const bool category : {true, false}) {
        for (const Value& value : plotOf(*root).getAxisValues(context, category))
            text += value.getValue().toUtf8() + ' ';
        text += category ? "| " : "";
    }
    return text;
}

TEST(PlotData, KindsOfTheAxesFollowTheData) {
    const struct {
        std::string category, value, charts;
        ValueKind categories, values;
        const char* why;
    } cases[] = {
        {"", "", lineChart("A=1 B=2"), ValueKind::Text, ValueKind::Number, "texts and numbers"},
        {"", "", lineChart("2024-01-01=1 2024-01-02=x"), ValueKind::Date, ValueKind::Number, "a tie is numeric"},
        {"", "", lineChart("A=1 =x =y"), ValueKind::Text, ValueKind::Number, "points without category do not count"},
        {"", "", lineChart("7=1 7=2 7=3 A=1 B=1"), ValueKind::Number, ValueKind::Number, "repeated ones do"},
        {"", "", "", ValueKind::Number, ValueKind::Number, "nothing to go by"},
        {"", "", lineChart("1=1 A=1"), ValueKind::Number, ValueKind::Number, "as many texts are not more"},
        {"", "", lineChart("2024-01-01=1 A=1"), ValueKind::Date, ValueKind::Number, "texts do not outnumber the dates"},
        {"", "", lineChart("1=1 2024-01-01=1 2024-01-02=1 A=1 B=1"), ValueKind::Date, ValueKind::Number, "dates do"},
        {"", "", lineChart("1=1 2=1 3=1 2024-01-01=1 2024-01-02=1 A=1 B=1 C=1"), ValueKind::Number, ValueKind::Number,
         "more texts than dates, but not than numbers"},
        {"data-type='text'", "data-type='date'", lineChart("1=1"), ValueKind::Text, ValueKind::Date, "as the axes say"},
        {"data-type='number-alt'", "data-type='number'", lineChart("A=x"), ValueKind::Number, ValueKind::Number,
         "both"},
    };
    for (const auto& c : cases) {
        const auto root = load(plot(c.category, c.value, c.charts));
        EXPECT_EQ(plotOf(*root).getDataKind(true), c.categories) << c.why;
        EXPECT_EQ(plotOf(*root).getDataKind(false), c.values) << c.why;
    }
}

TEST(PlotData, SeriesAreCleanedBeforeTheyAreMeasured) {
    const CapturedLog log;
    const struct {
        std::string xml, values, warnings;
        const char* why;
    } cases[] = {
        {plot("", "unit='50'", lineChart("B=10 A=20") + lineChart("C=30 B=40")), "B A C | 0 50 ", "",
         "names in the order of their first appearance, over all series"},
        {plot("", "unit='50'", lineChart("A=10 A=90 =80 B=20 A=70 =60")), "A B | 0 50 ", "34070 34071 ",
         "the first of equal categories stays, points without one go"},
        {plot("data-type='text'", "unit='50'", lineChart("A=1 0.1=10 0.10000001=90")), "A 0.1 | 0 50 ", "34071 ",
         "texts are equal when they look equal"},
        {plot("", "unit='50'", lineChart("A=1 2024=10 B=2")), "A 2024 B | 0 50 ", "", "a text axis drops nothing"},
        {plot("unit='5'", "unit='50'", lineChart("1=10 2=20 3=30 A=90")), "0 5 | 0 50 ", "34072 ",
         "an axis of numbers drops texts"},
        {plot("", "unit='50'", lineChart("A=10 B=x C=20 D=30")), "A B C D | 0 50 ", "34072 ",
         "a lost value leaves its category where it was"},
        {plot("", "unit='50'", lineChart("A=10 B= C=20")), "A B C | 0 50 ", "", "so does a missing one"},
        {plot("unit='5'", "unit='50'", lineChart("1=10 7= 3=20 ")), "0 5 10 | 0 50 ", "", "also among numbers"},
        {plot("", "", lineChart("A=high B=low C= D=high")), "A B C D | high low ", "", "values may be texts"},
        {plot("", "unit='5'", lineChart("2024-02-01=1 2023-12-31=2 x=9")), "2023-12-01 2024-01-01 2024-02-01 | 0 5 ",
         "34072 ", "dates in any order; 3 labels of 60 px fit"},
    };
    std::size_t told = 0;
    for (const auto& c : cases) {
        EXPECT_EQ(valuesOf(c.xml), c.values) << c.why;
        std::string warnings;
        for (; told < log.records.size(); ++told) warnings += std::to_string(log.records[told].code) + ' ';
        EXPECT_EQ(warnings, c.warnings) << c.why;
    }
}

TEST(PlotData, WarningsNameTheFirstPointAndCountTheOthers) {
    const CapturedLog log;
    valuesOf(plot("", "",
                  "<line-chart><serie>\n" + points("A=1") + "\n" + points("A=2") + "\n " + points("A=3 =4") + "\n" +
                      points("B=2 C=x") + "</serie></line-chart>"));
    EXPECT_EQ(log.told(), "34070@4:38 34071@3:1 34072@5:37");
    EXPECT_NE(log.records.at(1).message.find("2 of this series"), String::npos);
    EXPECT_NE(log.records.at(2).message.find("\"value-axis\""), String::npos);
}

TEST(PlotData, StackedBarsWidenTheValues) {
    const std::vector<std::string> series = {"A=30 B=-10", "A=40 B=-20", "A=-5 C=8"};
    const struct {
        std::string charts, values;
        const char* why;
    } cases[] = {
        {barChart("stacked", series), "A B C | -50 0 50 100 ", "70 at A, -30 at B"},
        {barChart("clustered", series), "A B C | -50 0 50 ", "40 and -20 stand side by side"},
        {barChart("stacked", {"A=30"}) + lineChart("A=40 D=80"), "A D | 0 50 100 ",
         "the total is of all charts, the line's own point of none"},
        {barChart("stacked", {"A=20 A=90", "A=20"}), "A | 0 50 ", "a repeated category is not stacked"},
        {"<line-chart grouping='stacked'><serie>" + points("A=30") + "</serie><serie>" + points("A=40") +
             "</serie></line-chart>",
         "A | 0 50 ", "nor are lines"},
    };
    const CapturedLog log;
    for (const auto& c : cases) EXPECT_EQ(valuesOf(plot("", "unit='50'", c.charts)), c.values) << c.why;

    const auto root = load(plot("", "", barChart("overlapped", series)));
    VexaPlotArea& area = plotOf(*root);
    EXPECT_EQ(area.getStackedTotal(false, Value(String("A")), true), 70);
    EXPECT_EQ(area.getStackedTotal(false, Value(String("A")), false), -5);
    EXPECT_EQ(area.getStackedTotal(true, Value(String("A")), true), 0) << "categories do not stack";
}

TEST(PlotData, SeriesAnswerForThemselvesToo) {
    const CapturedLog log;
    const auto root = load(plot("", "",
                                lineChart("A=3 B=x C=-1 D=7") + lineChart("A=2024-02-01 B=2023-02-01 C=y D=") +
                                    lineChart("B=z A=y") + lineChart("") + lineChart("A=1 B=x") +
                                    lineChart("A=2024-01-01 B=x") + lineChart("A=1 B=2024-01-01")));
    const auto serie = [&](std::size_t i) -> VexaSerie& { return *plotOf(*root).getCharts()[i]->getSeries()[0]; };
    const auto extremes = [&](std::size_t i, bool categories) {
        return serie(i).getMinValue(categories).getValue().toUtf8() + ' ' +
               serie(i).getMaxValue(categories).getValue().toUtf8();
    };
    EXPECT_EQ(serie(0).getValueType(false), ValueKind::Number);
    EXPECT_EQ(extremes(0, false), "-1 7") << "three numbers, one text";
    EXPECT_EQ(serie(0).getDataPoints().size(), 3U) << "the text is lost";
    EXPECT_EQ(extremes(1, false), "2023-02-01 2024-02-01");
    EXPECT_EQ(extremes(2, true), "B A") << "the first and the last text";
    EXPECT_EQ(extremes(3, false), " ");
    EXPECT_EQ(serie(3).getValueType(false), ValueKind::None);
    EXPECT_EQ(extremes(4, false), "x x") << "a number and a text: a text";
    EXPECT_EQ(extremes(5, false), "x x") << "a date and a text: a text";
    EXPECT_EQ(extremes(6, false), "1 1") << "a number and a date: a number";
    EXPECT_EQ(failureOf([] { make<VexaSerie>()->prepareDataPoints(); }), kNullPointer) << "no axis to ask";
    const XmlObjPtr<VexaDataPoint> lost = serie(2).getDataPoints()[0];
    serie(2).removeDataPoints([](const VexaDataPoint&) { return true; });
    EXPECT_EQ(lost->getParent(), nullptr) << "what is taken out belongs to no series";
}

TEST(PlotData, BoundsThatTheAxisCannotShowAreTold) {
    const CapturedLog log;
    const std::string labels = "<display-values/>";
    const std::string data = lineChart("2024-03-01=10 2024-03-03=20");
    const auto rangeOf = [&](const std::string& category, const std::string& value) {
        const auto root = load(fixedPlot("", "<category-axis " + category + "/><value-axis " + value + "/>" + data));
        const AxisRange& categories = plotOf(*root).getAxis(true).getRange();
        const AxisRange& values = plotOf(*root).getAxis(false).getRange();
        return categories.min.getValue().toUtf8() + ' ' + categories.max.getValue().toUtf8() + ' ' +
               values.min.getValue().toUtf8() + ' ' + values.max.getValue().toUtf8();
    };
    EXPECT_EQ(rangeOf("min='2024' max='2024-04-01'", "min='-5' max='high'"), "2024-03-01 2024-04-01 -5 25");
    EXPECT_EQ(log.codes(), "34073 34073") << "a year is a number, and a text is none";
    EXPECT_EQ(rangeOf("min='2024-05-01'", "min='50' max='10'"), "2024-03-01 2024-03-03 50 75");
    EXPECT_EQ(log.codes(), "34073 34073 34074 34074") << "backwards: the data's dates; numbers go on above the minimum";
    EXPECT_EQ(rangeOf("max='2024-02-01'", "max='-5'"), "2024-03-01 2024-03-03 0 25");
    EXPECT_EQ(log.codes(), "34073 34073 34074 34074 34074 34074") << "a largest value below the data's smallest, too";
}

}  // namespace
}  // namespace VEXA::Testing
