#include "vexa/check/DocumentCheck.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "vexa/support/core/Limits.h"

namespace VEXA {
namespace {

const std::string kRoot = "<root xmlns='http://vexa-charts.org/2008/vx' ";

/// A page of 400 px by 300 px without theme.
std::string page(const std::string& content, const std::string& attributes = "") {
    return kRoot + "width='400' height='300' theme='none' " + attributes + ">" + content + "</root>";
}

std::string points(std::initializer_list<const char*> categories) {
    std::string result;
    for (const char* category : categories)
        result += "<data-point value='1' category='" + std::string(category) + "'/>";
    return result;
}

/// A plot of one chart, "line", "bar" or "area", whose series is painted black; axes that `axes` does not give are
/// bare.
std::string plot(const std::string& kind, const std::string& data, const std::string& axes = "") {
    std::string all = axes;
    for (const char* axis : {"value-axis", "category-axis"}) {
        if (axes.find("<" + std::string(axis)) == std::string::npos) all += "<" + std::string(axis) + "/>";
    }
    return "<plot-area><" + kind + "-chart><serie fill='black' stroke='black'>" + data + "</serie></" + kind +
           "-chart>" + all + "</plot-area>";
}

CheckReport reportOf(const std::string& document) { return DocumentCheck::run(make<IO::MemoryStream>(document)); }

/// "3:5 error 3003; …"
std::string told(const CheckReport& report) {
    constexpr const char* kNames[] = {"hint", "warning", "error"};
    std::string text;
    for (const LogRecord& problem : report.problems) {
        text += std::to_string(problem.place.line) + ":" + std::to_string(problem.place.column) + " " +
                kNames[static_cast<int>(problem.severity)] + " " + std::to_string(problem.code) + "; ";
    }
    return text;
}

TEST(DocumentCheck, TellsTenFaultsInOneRunByPlace) {
    const std::string document = kRoot + R"(theme='none'>
<titel value='x'/>
<title value='Sales' heigth='20' x='3,5cm'/>
<plot-area><serie/>
<bar-chart><serie fill='url(#sunst)'><data-point category='2024-01-01' value='1'/>
<data-point category='2024-02-01' value='2'/><data-point category='2024-04-01'/>
<data-point category='05.03.2024' value='3'/></serie></bar-chart>
<value-axis unit='0'/>
<category-axis unit='-1'><display-values placement='between-tics'/></category-axis></plot-area>
<spider><spider-axis id='a'/><spider-serie fill='red'><spider-data-point/></spider-serie></spider>
<defs><linear-gradient id='sunset'/></defs>
<legend legend-placement='free' width='300' height='20'><legend-item caption='A' label='circel'/></legend>
</root>)";
    const CheckReport report = reportOf(document);
    EXPECT_EQ(told(report),
              "2:1 warning 3005; 3:1 error 34100; 3:1 warning 3007; 4:12 warning 3018; 5:12 warning 34102; "
              "7:1 warning 34106; 8:1 error 34066; 9:1 error 34066; 9:26 error 34100; 10:55 error 34000; "
              "12:57 error 34100; ");
    EXPECT_EQ(report.count(Severity::Error), 6U);
    EXPECT_EQ(report.leftOut, 0U);
}

struct Row {
    std::string document;
    const char *told, *why;
};

void expectTold(std::initializer_list<Row> rows) {
    for (const Row& row : rows) EXPECT_EQ(told(reportOf(row.document)), row.told) << row.why << "\n" << row.document;
}

TEST(DocumentCheck, GoesOnWhereARenderWouldEnd) {
    const std::string lost = "\n<pie/>\n<title value='Sales of the year' width='400' height='4'/>";
    const std::string tail = " 2:1 warning 34040; 3:1 warning 34105; ";
    const auto after = [&](const std::string& body) { return page(body + lost); };
    const std::string bare = "<plot-area><line-chart/></plot-area>";
    const std::string web = "<spider web-stroke='none'><spider-axis/><spider-serie fill='red'>";
    const std::string nameless = "<spider-data-point/>";
    const std::string themed = kRoot + "width='400' height='300'>" + bare + lost + "</root>";
    EXPECT_NE(told(reportOf(themed)).find("error 34065;"), std::string::npos)
        << "an error where the theme is handed out";
    EXPECT_NE(told(reportOf(after(bare))).find("warning 34065;"), std::string::npos) << "a warning as in a render";
    for (const std::string& body : {bare, web + nameless + nameless + "</spider-serie></spider>"})
        EXPECT_NE((" " + told(reportOf(after(body)))).find(tail), std::string::npos) << "the other parts: " << body;
    expectTold({
        {page(web + "\n" + nameless + "\n" + nameless + "</spider-serie></spider>"),
         "1:85 error 2001; 2:1 error 34000; 3:1 error 34000; ", "points of a series that is not reached"},
        {page("\n" + plot("bar", "\n<data-point value='1'/>" + points({"A"}), "<value-axis unit='-2'/>")),
         "3:1 warning 34070; 3:80 error 34066; ", "what the data lacks, though no scale can be made of it"},
        {page("<title value='a'/>", "viewBox='0 0 0 5'"), "1:1 error 34011; ", "a view box without extent"},
    });
}

TEST(DocumentCheck, JudgesWhatStandsBeforeMalformedXml) {
    expectTold({
        {page("<pie/>\n<plot-area>\n<line-chart>\n</plot-area>"), "1:85 warning 34040; 4:3 error 3017; ",
         "the whole pie, not the plot that is cut off"},
        {kRoot + "><titel/>\n<pie>", "1:47 warning 3005; 2:6 error 3017; ", "what was found before"},
        {kRoot + ">\n<", "2:1 error 3017; ", "a root whose content is not known is not empty"},
        {"", "1:1 error 34115; ", "no element"},
        {"<!-- <root/> -->", "1:1 error 34115; ", "no element either"},
        {"<svg/>", "1:1 error 3002; ", "another document"},
        {"<root/>", "1:1 error 3016; ", "no namespace"},
        {"<root xmlns='http://vexa-charts.org/2008'/>", "1:1 error 34101; ", "another one"},
        {"<pie xmlns='http://vexa-charts.org/2008/vx'><slize/></pie>", "1:1 error 34116; 1:45 warning 3005; ",
         "no root"},
    });
}

TEST(DocumentCheck, WarnsOfChartsWithoutData) {
    const std::string axes = "<value-axis/><category-axis/>";
    const std::string nothing = "<spider-serie fill='red'/>";
    expectTold({
        {page(""), "1:1 warning 34110; ", "an empty page"},
        {page("<title value='T'/>"), "", "a title alone is one"},
        {page("\n<plot-area><bar-chart/>" + axes + "</plot-area>"), "2:1 warning 34111; ", "a plot without series"},
        {page("<plot-area>\n<area-chart/><line-chart><serie stroke='red'>" + points({"A"}) + "</serie></line-chart>" +
              axes + "</plot-area>"),
         "2:1 warning 34119; ", "a chart without them beside another one"},
        {page("<title value='T'/>\n<legend width='9' height='9'/>"), "2:1 warning 34137; ", "a legend without items"},
        {page("\n" + plot("bar", "")), "2:23 warning 34112; ", "a series without points"},
        {page("\n<pie/>"), "2:1 warning 34040; ", "a pie without slices"},
        {page("\n<spider/>"), "2:1 warning 34113; ", "a spider without axes"},
        {page("\n<spider><spider-axis/></spider>"), "2:1 warning 34113; ", "and without series"},
        {page("\n<spider><spider-axis/>" + nothing + "</spider>"), "2:23 warning 34112; ", "a series without points"},
    });
}

TEST(DocumentCheck, WarnsOfIdsReferencesAndSizes) {
    const std::string twice = "<linear-gradient id='g'/>";
    const std::string bars = "<plot-area><bar-chart>\n<serie fill='red' marker-width='-2'>" + points({"A", "B"}) +
                             "</serie></bar-chart><value-axis/><category-axis>"
                             "<display-values placement='between-ticks'/></category-axis></plot-area>";
    const std::string unknown =
        "<legend legend-placement='free' width='9' height='9'\n fill='url(#x)'>"
        "<legend-item stroke='url(#x)'/></legend>";
    const std::string spider =
        "<spider><spider-axis id='a'/><spider-serie fill='red'><spider-data-point axis-id='a' "
        "value='1'/></spider-serie></spider>";
    const std::string axisTwice = spider + spider;
    const std::string axes = "<spider-axis id='a'/>\n<spider-axis id='a'/>\n<spider-axis/><spider-axis/>";
    expectTold({
        {page("<title id='g' value='T'/><defs>\n<linear-gradient id='g'/></defs>\n<pie id='g'><slice id='g' value='1' "
              "fill='red'/></pie>"),
         "3:1 hint 34138; 3:13 hint 34138; ", "of what nothing refers to; a definition is looked for alone"},
        {page(axisTwice), "", "the axes of two spiders"},
        {page("<defs>" + twice + "\n" + twice + "</defs><title/>"), "2:1 warning 34103; ", "the first one is found"},
        {page(bars), "2:37 warning 34114; ", "handed on by the series, told once, of the first point"},
        {page(plot("line", "\n<data-point category='A' value='1' width='-3'/>")), "2:1 warning 34114; ", "a width"},
        {page("\n<title value='T' stroke-width='-1pt'/>"), "2:1 warning 34114; ", "in any unit"},
        {page("\n<title value='T' stroke-width='0'/>"), "", "0 is a size"},
        {page("\n" + unknown), "2:1 warning 34001; 3:17 warning 34001; ", "each reference at its element"},
        {page("<defs><linear-gradient id='g' href='#h'/></defs><title/>"), "1:91 warning 34102; ", "of a gradient"},
        {page("<spider>" + axes + "<spider-serie fill='red'><spider-data-point axis-id='a'/></spider-serie></spider>"),
         "2:1 warning 34118; ", "axes without an id are no twins"},
    });
}

TEST(DocumentCheck, HintsAtDataThatItsAxesDistort) {
    const auto line = [](const std::string& data, const std::string& axis) { return page(plot("line", data, axis)); };
    const std::string years = points({"2019", "2020", "2021"});
    const std::string between = "<category-axis><display-values placement='between-ticks'/></category-axis>";
    const std::string serie = "<serie fill='red'>" + points({"A", "B"}) + "</serie>";
    const std::string axes = "<value-axis/><category-axis/>";
    const auto numbers = [&](const char* last) {
        return line(
            "<data-point category='A' value='1,5'/>\n<data-point category='B' value='" + std::string(last) + "'/>", "");
    };
    expectTold({
        {line(years, "\n<category-axis/>"), "2:1 hint 34120; ", "years from 0 on"},
        {line(years, "<category-axis data-type='text'/>"), "", "years as names"},
        {line(years, "<category-axis><display-values min='2019'/></category-axis>"), "", "years from the first on"},
        {line(points({"100", "2000", "2500"}), ""), "", "numbers that are no years"},
        {page(plot("bar", points({"A", "B"}), "\n<category-axis/>")), "2:1 hint 34123; ", "half of each bar"},
        {page(plot("bar", points({"A", "B"}), between)), "", "whole bars"},
        {line(points({"A", "B"}), ""), "", "lines end on the edge"},
        {line("\n" + points({"05.03.2024", "6.3.2024"}), "<category-axis unit='days'/>"), "2:1 hint 34128; ",
         "no dates"},
        {line(points({"2024-03-01T06:00"}) + "\n" + points({"2024-03-01T18:00", "2024-03-02"}), ""), "2:1 hint 34140; ",
         "two of one day"},
        {line(points({"2024-03-01T06:00", "2024-03-02T06:00", "2024-03-03"}), ""), "", "one for each day"},
        {line(points({"A", "B", "2024-03-01"}) + "\n" + points({"3/25/2024"}), ""), "2:1 hint 34128; ",
         "beside a date"},
        {line("\n" + points({"05.03.2024"}), ""), "2:1 hint 34128; ", "all look like dates"},
        {line(points({"05.03.2024"}), "<category-axis data-type='text'/>"), "", "and are meant as names"},
        {line(points({"05.03.2024", "total"}), ""), "", "one does not"},
        {line("<data-point category='A' value='4'/>\n<data-point category='B' value='5'/>",
              "<value-axis><display-values min='0' max='4'/></value-axis>"),
         "2:1 hint 34133; ", "above the axis, not the one on its end"},
        {line(points({"2019", "2020"}), "<category-axis><display-values min='2020'/></category-axis>"),
         "1:143 hint 34133; ", "before it"},
        {page("<plot-area>\n<area-chart grouping='stacked'>" + serie + serie + "</area-chart>" + axes + "</plot-area>"),
         "2:1 hint 34134; ", "areas are not summed up"},
        {page("<plot-area>\n<area-chart grouping='stacked'>" + serie + "</area-chart>" + axes + "</plot-area>"), "",
         "one is no stack"},
        {numbers("2,5"), "1:143 hint 34129; ", "values that count as texts"},
        {numbers("high"), "1:143 hint 34129; ", "the first one that was meant as a number"},
    });
}

TEST(DocumentCheck, HintsAtWhatDoesNotShowAsItIsMeant) {
    const auto line = [](const std::string& data, const std::string& axis) { return page(plot("line", data, axis)); };
    const auto grid = [](const std::string& attributes) {
        return "<value-axis>\n<grid-lines " + attributes + "/></value-axis>";
    };
    const auto spider = [](const std::string& attributes, const std::string& serie) {
        return page("<spider " + attributes + "><spider-axis id='a'/>\n<spider-serie " + serie +
                    "><spider-data-point axis-id='a' value='3'/></spider-serie></spider>");
    };
    const auto bare = [](const std::string& attributes, const std::string& point) {
        return "<plot-area " + attributes + "><line-chart>\n<serie><data-point category='A' value='1' " + point +
               "/></serie></line-chart><value-axis/><category-axis/></plot-area>";
    };
    std::string slices = "<slice value='300' stroke='red'/>";
    for (int i = 0; i < 20; ++i) slices += "<slice value='1' stroke='red' caption='Caption'/>";
    const std::string serie = "<serie fill='red'>" + points({"A", "B"}) + "</serie>";
    const std::string between =
        "<value-axis/><category-axis><display-values placement='between-ticks'/></category-axis>";
    expectTold({
        {line(points({"A"}), grid("")), "2:1 hint 34125; ", "a grid that does not show"},
        {line(points({"A"}), grid("stroke='red'")), "", "one that does"},
        {line(points({"A"}), grid("type='none'")), "", "one that is not meant to"},
        {spider("web-stroke-width='0'", "fill='red'"), "1:85 hint 34126; ", "a web of no width"},
        {spider("web-stroke-width='0' draw-web='false'", "fill='red'"), "", "no web"},
        {spider("", ""), "2:1 hint 34127; ", "a series of no colour: themes give spiders none"},
        {page("<pie><slice value='0'/>\n<slice value='2'/><slice value='1'/></pie>"), "2:1 hint 34127; ", "told once"},
        {page("<pie fill='red'>\n<slice value='2' stroke='red'/></pie>"), "", "an outline shows"},
        {page("\n<pie fill='red'>" + slices + "</pie>"), "2:1 hint 34131; ", "captions of thin slices"},
        {page(bare("", "")), "2:1 hint 34130; ", "a line without stroke"},
        {page(bare("", "caption='1'")), "", "meant for its captions"},
        {page("<plot-area>\n<bar-chart bar-shape='cylinder'>" + serie + "</bar-chart>" + between + "</plot-area>"),
         "2:1 hint 34139; ", "cylinders in the flat view"},
        {page("<plot-area aspect-3d-view='true'><bar-chart bar-shape='cylinder'>" + serie + "</bar-chart>" + between +
              "</plot-area>"),
         "", "in the 3-D view"},
        {page(bare("aspect-3d-view='true'", "fill='red'")), "2:1 hint 34127; ", "the ribbon is the series' own"},
        {kRoot + ">" + bare("", "") + "</root>", "", "the theme gives a stroke"},
        {page("<pie>\n<slice value='2' fill='red'/>\n<slice value='-2' fill='red'/><slice value='-3' "
              "fill='red'/></pie>"),
         "3:1 hint 34135; ", "as large as one of 2, told of the first"},
        {page("\n<title value='T' fill-opacity='50'/>"), "2:1 hint 34136; ", "not 50%"},
        {page("\n<title value='T' fill-opacity='1' stroke-opacity='100%' opacity='-0.1'/>"), "2:1 hint 34136; ",
         "0 and 1 are within"},
        {page("<title value='T' x='a' stroke-width='-1'/>\n<legend width='a'><legend-item/></legend>"),
         "1:85 error 3003; 1:85 warning 34114; 2:1 error 3003; ", "no hint that an error explains"},
    });
}

TEST(DocumentCheck, HintsAtSizesThatDoNotFitThePage) {
    const auto legend = [](const std::string& attributes) {
        return page("\n<legend " + attributes + "><legend-item caption='A'/></legend>");
    };
    const auto root = [](const std::string& attributes, const std::string& content) {
        return kRoot + attributes + " viewBox='0 0 200 100'>" + content + "</root>";
    };
    const std::string free = "legend-placement='free' height='20' width=";
    const std::string docked = "<legend width='20'><legend-item/></legend>";
    const std::string title = "<title value='T' height='50'/>";
    expectTold({
        {legend(""), "2:1 hint 34121; ", "docked at the right, as wide as the page"},
        {legend("legend-placement='top' width='50'"), "2:1 hint 34121; ", "at the top the height counts"},
        {legend("width='90'"), "", "room for the chart is left"},
        {legend(free + "'500'"), "2:1 hint 34122; ", "wider than the page"},
        {legend(free + "'400'"), "", "as wide as it"},
        {root("width='400' height='200'", docked), "1:1 hint 34124; 1:93 warning 34051; ", "docked beside the page"},
        {root("width='100' height='50' fill='red'", title), "1:1 hint 34124; ", "a quarter of the background"},
        {root("width='400' height='200' fill='red'", title), "", "the background covers more than the page"},
        {root("width='200' height='100' fill='red'", docked), "", "of one size"},
        {root("fill='red'", docked), "", "100% is the view box"},
    });
}

TEST(DocumentCheck, FindsNothingWrongWithTheExamples) {
    std::size_t count = 0;
    for (const char* folder : {VEXA_SOURCE_DIR "/examples", VEXA_SOURCE_DIR "/docs/examples"}) {
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            if (entry.path().extension() != ".xml") continue;
            const auto stream = make<IO::FileStream>(entry.path().string(), IO::FileStream::Mode::Read);
            EXPECT_EQ(told(DocumentCheck::run(stream)), "") << entry.path();
            ++count;
        }
    }
    EXPECT_GT(count, 30U);
}

TEST(Limits, Problems) {
    constexpr std::size_t kMore = 7;
    const auto repeated = [](const std::string& text) {
        std::string all;
        for (std::size_t i = 0; i < Limits::kCheckedProblems + kMore; ++i) all += text;
        return all;
    };
    const std::string plots = plot("line", points({"A"}), "<value-axis><grid-lines/></value-axis>");
    for (const std::string& part : {std::string("<zz/>"), std::string("<pie x='a'/>"), std::string("<pie/>"), plots}) {
        const CheckReport report = reportOf(page("<title value='T'/>" + repeated(part)));
        const std::size_t kinds = part == "<pie x='a'/>" ? 2 : 1;  // and it is empty
        EXPECT_EQ(report.problems.size(), kinds * Limits::kCheckedProblems + 1) << part;
        EXPECT_EQ(report.leftOut, kinds * kMore) << part;
        EXPECT_EQ(report.problems.back().code, 34117) << part;
    }
}

}  // namespace
}  // namespace VEXA
