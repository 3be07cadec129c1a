#include "vexa/check/TreeRules.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include "vexa/cartesian/VexaPlotArea.h"
#include "vexa/check/AttributeReading.h"
#include "vexa/check/TreeWalk.h"
#include "vexa/pie/VexaPie.h"
#include "vexa/spider/VexaSpider.h"
#include "vexa/support/core/QuotedText.h"

namespace VEXA {

namespace {

constexpr int kNoAxisId = 34000;
constexpr int kUnknownAxis = 34016;
constexpr int kNearAxis = 34104;
constexpr int kNoSeries = 34111;
constexpr int kNoPoints = 34112;
constexpr int kSpiderWithout = 34113;
constexpr int kSecondAxis = 34118;
constexpr int kEmptyChart = 34119;
constexpr int kBareGrid = 34125;
constexpr int kBareWeb = 34126;
constexpr int kUnseen = 34127;
constexpr int kUnseenLine = 34130;
constexpr int kHiddenCaptions = 34131;
constexpr int kBelowNothing = 34135;
constexpr int kNoItems = 34137;

void checkPlot(VexaPlotArea& plot, ProblemList& problems) {
    if (plot.getSerieCount() == 0) return problems.add(Severity::Warning, kNoSeries, {}, plot.getPlace());
    for (const auto& chart : plot.getCharts()) {
        if (chart->getSeries().isEmpty())
            problems.add(Severity::Warning, kEmptyChart, {chart->getTypeInfo()->getElementName()}, chart->getPlace());
    }
}

void checkLegend(const VexaLegend& legend, ProblemList& problems) {
    if (legend.getItems().isEmpty()) problems.add(Severity::Warning, kNoItems, {}, legend.getPlace());
}

void checkPoints(std::size_t count, const XmlObject& serie, const char* point, ProblemList& problems) {
    if (count == 0) problems.add(Severity::Warning, kNoPoints, {String(point)}, serie.getPlace());
}

/// What a search of each axis for its data point meets, see VexaSpiderSerie::render, which ends at the first failure.
void checkSpiderPoints(const VexaSpiderSerie& serie, const SpiderAxisIndex& axes, std::size_t axisCount,
                       ProblemList& problems) {
    std::unordered_set<std::size_t> taken;
    std::size_t open = axisCount;
    for (const auto& point : serie.getDataPoints()) {
        if (!point->hasAxisId()) {
            problems.add(open > 0 ? Severity::Error : Severity::Warning, kNoAxisId, {}, point->getPlace());
            continue;
        }
        const auto found = axes.find(point->getAxisId());
        if (found.empty()) {
            VexaSpiderSerie::tellLost(*point, axes);
        } else if (taken.insert(found.front().axis).second) {
            open -= found.size();
        }
    }
}

void checkSpiderAxes(const VexaSpider& spider, ProblemList& problems) {
    std::unordered_set<String> ids;
    for (const auto& axis : spider.getAxes()) {
        if (axis->getId().isEmpty() || ids.insert(axis->getId()).second) continue;
        problems.add(Severity::Warning, kSecondAxis, {quoteForMessage(axis->getId())}, axis->getPlace());
    }
}

void checkSpider(const VexaSpider& spider, ProblemList& problems) {
    const bool hasAxes = !spider.getAxes().isEmpty();
    const bool hasSeries = !spider.getSeries().isEmpty();
    checkSpiderAxes(spider, problems);
    if (!hasAxes || !hasSeries) {
        const char* const missing = hasAxes ? R"("spider-serie")" : R"("spider-axis")";
        return problems.add(Severity::Warning, kSpiderWithout, {String(missing)}, spider.getPlace());
    }
    const SpiderAxisIndex axes(spider.getAxes());
    for (const auto& serie : spider.getSeries()) {
        checkPoints(serie->getDataPoints().size(), *serie, "spider-data-point", problems);
        checkSpiderPoints(*serie, axes, spider.getAxes().size(), problems);
    }
}

bool isPainted(VexaElementObject& element) {
    return element.getFillBrush(ColorAspect::Normal, 0.5F) || element.getStrokeBrush(ColorAspect::Normal, 0.5F);
}

void tellUnseen(const XmlObject& object, const char* what, ProblemList& problems) {
    problems.add(Severity::Hint, kUnseen, {String(what)}, object.getPlace());
}

/// Captions and markers show without their series.
bool hasOverlay(const VexaDataPoint& point) {
    return !readAttribute<String>(point, "caption")->isEmpty() ||
           *readAttribute<MarkerType>(point, "marker") != MarkerType::None;
}

void checkSerie(VexaSerie& serie, ProblemList& problems) {
    const auto& points = serie.getDataPoints();
    if (points.isEmpty() || std::any_of(points.begin(), points.end(), [](const auto& p) { return hasOverlay(*p); }))
        return;
    const ContainerKind kind = VexaContainerObject::of(serie).getContainerKind();
    const bool isFlatLine = kind == ContainerKind::Line && !serie.getPlotArea().isView3DMode();
    if (isFlatLine) {
        const bool isSeen = serie.hasThemeLineStroke() || serie.getStrokeBrush(ColorAspect::Normal, 0.5F);
        if (!isSeen) problems.add(Severity::Hint, kUnseenLine, {}, serie.getPlace());
    } else if (kind == ContainerKind::Bar) {
        if (std::none_of(points.begin(), points.end(), [](const auto& p) { return isPainted(*p); }))
            tellUnseen(serie, "series", problems);
    } else if (!isPainted(serie)) {
        tellUnseen(serie, "series", problems);
    }
}

/// A slice is as large as its value without a sign. The first one stands for all.
void checkSigns(const VexaPie& pie, ProblemList& problems) {
    for (const auto& slice : pie.getSlices()) {
        const float value = *readAttribute<float>(*slice, "value");
        if (value < 0)
            return problems.add(Severity::Hint, kBelowNothing, {Value(value).getValue(), Value(-value).getValue()},
                                slice->getPlace());
    }
}

/// The first one of a pie stands for all.
void checkSlices(const VexaPie& pie, ProblemList& problems) {
    for (const auto& slice : pie.getSlices()) {
        if (slice->getAbsValue() != 0 && !isPainted(*slice)) return tellUnseen(*slice, "slice", problems);
    }
}

/// That a few small slices go without is what leaving captions out is for.
void checkCaptions(const VexaPie& pie, ProblemList& problems) {
    constexpr std::size_t kFew = 4;  // one of so many
    const std::size_t hidden = pie.getOverlappedCaptions();
    if (hidden * kFew > pie.getSlices().size())
        problems.add(Severity::Hint, kHiddenCaptions, {static_cast<std::int64_t>(hidden)}, pie.getPlace());
}

void checkPie(const VexaPie& pie, ProblemList& problems) {
    checkSigns(pie, problems);
    checkSlices(pie, problems);
    checkCaptions(pie, problems);
}

void checkGrid(VexaGridLine& grid, ProblemList& problems) {
    const bool isDrawn = *readAttribute<GridlineType>(grid, "type") != GridlineType::None;
    if (isDrawn && grid.getStrokeBrush(ColorAspect::Normal, 0.5F).isEmpty())
        problems.add(Severity::Hint, kBareGrid, {}, grid.getPlace());
}

void checkWeb(const VexaSpider& spider, ProblemList& problems) {
    const bool isDrawn = *readAttribute<bool>(spider, "draw-web");
    if (isDrawn && readAttribute<SLength>(spider, "web-stroke-width")->getNumber() == 0)
        problems.add(Severity::Hint, kBareWeb, {}, spider.getPlace());
}

}  // namespace

SourcePlace lastChildPlace(const XmlObject& object) {
    SourcePlace last = object.getPlace();
    for (const XmlObject* const child : object.getTypeInfo()->childrenOf(object)) {
        const SourcePlace place = child->getPlace();
        if (std::pair(place.line, place.column) > std::pair(last.line, last.column)) last = place;
    }
    return last;
}

void checkTree(VexaRoot& root, ProblemList& problems) {
    walkTree(root, [&](XmlObject& object) {
        if (object.isA(VexaPlotArea::typeID())) checkPlot(static_cast<VexaPlotArea&>(object), problems);
        if (object.isA(VexaSpider::typeID())) checkSpider(static_cast<VexaSpider&>(object), problems);
        if (object.isA(VexaLegend::typeID())) checkLegend(static_cast<VexaLegend&>(object), problems);
        if (object.isA(VexaSerie::typeID()))
            checkPoints(static_cast<VexaSerie&>(object).getDataPoints().size(), object, "data-point", problems);
    });
    problems.ignoreWarnings({kNoAxisId, kUnknownAxis, kNearAxis});
}

void checkVisibility(VexaRoot& root, ProblemList& problems) {
    walkTree(root, [&](XmlObject& object) {
        if (object.isA(VexaSerie::typeID())) checkSerie(static_cast<VexaSerie&>(object), problems);
        if (object.isA(VexaPie::typeID())) checkPie(static_cast<VexaPie&>(object), problems);
        if (object.isA(VexaGridLine::typeID())) checkGrid(static_cast<VexaGridLine&>(object), problems);
        if (object.isA(VexaSpider::typeID())) checkWeb(static_cast<VexaSpider&>(object), problems);
        if (object.isA(VexaSpiderSerie::typeID()) && !isPainted(static_cast<VexaSpiderSerie&>(object)))
            tellUnseen(object, "series", problems);
    });
}

}  // namespace VEXA
