#include "vexa/engine/ChartSynonyms.h"

namespace VEXA {

namespace {

constexpr SynonymGroup kGroups[] = {
    // Elements
    "display-values labels label",
    "tick-marks ticks tick",
    "grid-lines grid gridlines",
    "category-axis axis x-axis xaxis",
    "value-axis axis y-axis yaxis",
    "spider-axis axis category-axis value-axis",
    "bar-chart bar bars column columns column-chart",
    "line-chart line lines",
    "area-chart area areas",
    "spider radar radar-chart spider-chart",
    "pie pie-chart doughnut donut",
    "serie series dataset",
    "spider-serie serie series dataset",
    "data-point point",
    "spider-data-point data-point point",
    "slice data-point point item segment sector",
    "legend-item item entry",
    "stop color-stop",
    // Attributes
    "caption value text label title name",
    "marker label shape symbol",
    "label-width marker-width",
    "category x key",
    "value y",
    "min minimum",
    "max maximum",
    "unit step interval",
    "fill color colour background background-color",
    "stroke color colour border border-color line-color",
    "stroke-width border-width line-width thickness",
    "font-size size text-size",
    "font-family font typeface",
    "caption-color text-color font-color",
    "opacity alpha",
};

}  // namespace

std::span<const SynonymGroup> chartSynonyms() noexcept { return kGroups; }

}  // namespace VEXA
