#include "vexa/check/PageRules.h"

#include "vexa/check/AttributeReading.h"
#include "vexa/engine/VexaEngine.h"

namespace VEXA {

namespace {

constexpr int kEmptyRoot = 34110;
constexpr int kLegendCovers = 34121;
constexpr int kLegendTooLarge = 34122;
constexpr int kRootBesideViewBox = 34124;

bool isPaint(const XmlObject& area, std::string_view name) {
    const SNullableColor& paint = *readAttribute<SNullableColor>(area, name);
    return !paint.isNull() && paint.getSColor().getType() != SColorType::None;
}

bool isDocked(const VexaLegend& legend) {
    return *readAttribute<LegendPlacement>(legend, "legend-placement") != LegendPlacement::Free;
}

/// What goes wrong on a root that is not as large as its view box; null when nothing does.
const char* harmOf(const VexaRoot& root, const SizeF& size, const SizeF& box) {
    if (root.getLegend() && isDocked(*root.getLegend())) return "a docked legend misses the edge of the page";
    const bool isSmaller = size.width < box.width || size.height < box.height;
    if (isSmaller && isPaint(root, "fill")) return "its background does not fill the page";
    return isPaint(root, "stroke") ? "its outline misses the edge of the page" : nullptr;
}

void checkViewBox(const VexaRoot& root, ProblemList& problems) {
    const ViewBox& viewBox = root.getViewBox();
    if (viewBox == ViewBox()) return;
    const SizeF box{viewBox.width.pxSize(root.getWidth(VexaEngine::kReferenceWidth)),
                    viewBox.height.pxSize(root.getHeight(VexaEngine::kReferenceHeight))};
    const SizeF size{root.getWidth(box.width), root.getHeight(box.height)};
    if (size == box || !(box.width > 0) || !(box.height > 0)) return;
    if (const char* const harm = harmOf(root, size, box)) {
        problems.add(Severity::Hint, kRootBesideViewBox, {size.width, size.height, box.width, box.height, String(harm)},
                     root.getPlace());
    }
}

/// Docked at the top or the bottom a legend keeps its height, at the sides its width.
void checkDocked(LegendPlacement placement, const VexaLegend& legend, const SizeF& size, const SizeF& page,
                 ProblemList& problems) {
    const bool isFlat = placement == LegendPlacement::Top || placement == LegendPlacement::Bottom;
    if (isFlat ? size.height < page.height : size.width < page.width) return;
    problems.add(Severity::Hint, kLegendCovers,
                 {String(ValueTraits<LegendPlacement>::print(placement)), String(isFlat ? "high" : "wide"),
                  String(isFlat ? "height" : "width")},
                 legend.getPlace());
}

}  // namespace

void checkRoot(VexaRoot& root, ProblemList& problems) {
    if (root.getBodies().isEmpty() && !root.getTitle() && !root.getLegend())
        problems.add(Severity::Warning, kEmptyRoot, {}, root.getPlace());
    root.findObject("#");  // indexes the definitions, with a warning for each id that comes twice
    checkViewBox(root, problems);
}

void checkLegend(const VexaLegend& legend, const VexaRenderContext& context, ProblemList& problems) {
    if (legend.getItems().isEmpty()) return;
    const auto& width = readAttribute<LengthOrPercent>(legend, "width");
    const auto& height = readAttribute<LengthOrPercent>(legend, "height");
    const SizeF size{context.pxWidth(*width), context.pxHeight(*height)};
    const SizeF page = context.getSize();
    const LegendPlacement placement = *readAttribute<LegendPlacement>(legend, "legend-placement");
    if (placement != LegendPlacement::Free) return checkDocked(placement, legend, size, page, problems);
    if (size.width > page.width || size.height > page.height)
        problems.add(Severity::Hint, kLegendTooLarge, {size.width, size.height, page.width, page.height},
                     legend.getPlace());
}

}  // namespace VEXA
