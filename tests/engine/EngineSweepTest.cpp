#include <algorithm>
#include <thread>

#include "tests/engine/EngineTestTools.h"

namespace VEXA::Testing {
namespace {

/// A radar chart, a doughnut and a legend that give nearly every attribute they may have, in one line.
const std::string kChart =
    R"x(<vx:root xmlns:vx="http://vexa-charts.org/2008/vx" x="1" y="2" width="90%" height="300" viewBox="0 0 90 60" )x"
    R"x(theme="red-flat" fill="url(#g)" font-size="10%"><vx:title x="1" y="2" width="30%" height="9" value="A b c" )x"
    R"x(value-color="#123"/><vx:spider x="3" y="4" width="80%" height="40" unit-frequency="7" web-stroke="url(#h)" )x"
    R"x(web-stroke-opacity="50%" web-stroke-width="2pt" web-stroke-miterlimit="3" web-stroke-dasharray="3 1" )x"
    R"x(web-stroke-dashoffset="1"><vx:spider-axis id="a" min="-5" max="50" caption="A" caption-offset="3" )x"
    R"x(stroke="red"/><vx:spider-axis id="b" min="1" max="9"/><vx:spider-serie stroke-width="3" fill="none" )x"
    R"x(opacity="0.5"><vx:spider-data-point axis-id="a" value="7"/></vx:spider-serie></vx:spider>)x"
    R"x(<vx:pie x="2" y="3" width="70" height="50%" start-angle="30" slice-orientation="counter-clockwise" )x"
    R"x(pie-shape="doughnut" show-connectors="true" connectors-color="#888" caption-size="9%" aspect-3d-view="true" )x"
    R"x(aspect-3d-chart-depth="5" aspect-3d-shading="0.5" labels-position="overflow"><vx:slice value="3" caption="A b" )x"
    R"x(caption-offset="2" stroke="red"/><vx:slice value="-1" caption="C" caption-placement="center"/></vx:pie><vx:defs>)x"
    R"x(<vx:linear-gradient id="g" x1="0" y1="1" x2="2" y2="3" gradientTransform="rotate(4)"><vx:stop offset="5%" )x"
    R"x(stop-color="red" stop-opacity="0.5"/></vx:linear-gradient><vx:radial-gradient id="h" href="#g" cx="1" r="2"/>)x"
    R"x(</vx:defs><vx:legend legend-placement="bottom" orientation="rotate90" padding="2" width="20%" height="9" )x"
    R"x(stroke-width="2"><vx:legend-item label="dash" label-width="3" label-spacing="1" caption="A b"/></vx:legend>)x"
    R"x(</vx:root>)x";

/// A plot with all that axes, labels and charts of it may have.
const std::string kPlot =
    R"x(<root xmlns="http://vexa-charts.org/2008/vx" width="300" height="200" theme="red-gradient" font-size="9">)x"
    R"x(<plot-area x="3" y="4" width="80%" height="150" fill="#eee" labels-position="fit" show-captions="true" )x"
    R"x(aspect-3d-view="true" aspect-3d-scene-depth="9" aspect-3d-chart-depth="5" aspect-3d-shading="0.5">)x"
    R"x(<category-axis orientation="automatic" intersection="at-minimum" caption="Day" unit="days" data-type="date" )x"
    R"x(min="2024-02-28" max="2024-03-04"><tick-marks tick-mark-style="cross" tick-mark-length="4"/>)x"
    R"x(<display-values offset="3" placement="between-ticks" orientation="diagonal" format="d MMM"/></category-axis>)x"
    R"x(<value-axis orientation="vertical" intersection="at-cross-value" caption="mm" caption-offset="2" unit="10" )x"
    R"x(min="-20" max="40"><grid-lines type="line" stroke="#ccc"/><display-values format="0.0" draw-at-min="false" )x"
    R"x(adjust-values="true" min="-10" max="30"><value value="10" display="ten"/></display-values></value-axis>)x"
    R"x(<bar-chart grouping="stacked" cluster-spacing="2" bar-shape="cylinder"><serie><data-point width="7" )x"
    R"x(category="2024-03-01" value="12"/><data-point category="2024-03-02" value="-5" caption="low"/></serie><serie>)x"
    R"x(<data-point category="2024-03-01" value="20" marker="circle"/></serie></bar-chart><line-chart><serie>)x"
    R"x(<data-point category="2024-02-29" value="1"/></serie></line-chart></plot-area></root>)x";

class EngineSweepOf : public testing::TestWithParam<std::string> {};

TEST_P(EngineSweepOf, NastyValuesDrawSomethingOrAreRefused) {
    const std::string& chart = GetParam();
    const std::string digits(10'000, '9');
    const std::string nasty[] = {"",   "0",     "-1",  "1e38", "-1e38",        "1e999", "nan",      "1e-45",   "1e38%",
                                 "#g", "0 0 0", "{0}", "none", "url(#nobody)", digits,  "16777216", "0.5 0.5", "-3e9"};
    std::size_t swept = 0;
    const CapturedLog log;
    for (std::size_t quote = chart.find("=\""); quote != std::string::npos; quote = chart.find("=\"", quote + 1)) {
        const std::size_t end = chart.find('"', quote + 2);
        for (const std::string& value : nasty) {
            const std::string what =
                chart.substr(quote - std::min<std::size_t>(quote, 12), 12) + "=" + value.substr(0, 20);
            try {
                const std::string drawn = draw(chart.substr(0, quote + 2) + value + chart.substr(end));
                EXPECT_TRUE(drawn.ends_with("{\"op\":\"endDocument\"}\n")) << what;
            } catch (const Exception& e) {
                EXPECT_STRNE(e.what(), "") << what;
            }
        }
        ++swept;
    }
    EXPECT_GT(swept, 50U);
}

INSTANTIATE_TEST_SUITE_P(Charts, EngineSweepOf, testing::Values(kChart, kPlot),
                         [](const auto& chart) { return chart.index == 0 ? "Radar" : "Plot"; });

TEST(EngineSweep, AnyShapeOfTreeIsFreedWithoutHarm) {
    XmlObjPtr<XmlObject> body;
    {
        const auto root = load(kChart);
        body = root->getBodies()[0];
        EXPECT_EQ(body->getParent(), root.get());
    }
    EXPECT_EQ(body->getParent(), nullptr) << "a child that outlives its tree has no parent";
    VexaRenderContext context(make<NullSurface>(), 100, 100);
    const CapturedLog log;
    static_cast<VexaObject&>(*body).render(context);
    EXPECT_EQ(log.codes(), "34001") << "and paints what it can: its gradient is gone with the root";
}

TEST(Threads, WarningsStayWithTheirDocument) {
    std::vector<std::string> told(4);
    {
        std::vector<std::jthread> threads;
        for (std::size_t i = 0; i < told.size(); ++i)
            threads.emplace_back([&told, i] {
                const CapturedLog log;
                draw(rootWith("", std::string(i, '\n') + "<pie/>"));
                for (const LogRecord& record : log.records) told[i] += std::to_string(record.place.line);
            });
    }
    EXPECT_EQ(told, (std::vector<std::string>{"1", "2", "3", "4"}));
}

}  // namespace
}  // namespace VEXA::Testing
