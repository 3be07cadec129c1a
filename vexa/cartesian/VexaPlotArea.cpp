#include "vexa/cartesian/VexaPlotArea.h"

#include "vexa/support/core/Log.h"

namespace VEXA {

namespace {

constexpr char kSource[] = "VexaPlotArea";
constexpr int kNoAxis = 34065;
constexpr int kNoRoom = 34069;

LengthOrPercent px(float length) { return LengthOrPercent(Length(length)); }

[[noreturn]] void refuseOrientation(const VexaAxisObject& axis, int line) {
    const auto ordinal = static_cast<std::int32_t>(axis.getOrientation());
    raise(UnreacheableCodeException(String("unknown axis orientation " + std::to_string(ordinal))), kSource, line,
          axis.getPlace());
}

}  // namespace

VexaPlotArea::VexaPlotAreaTypeInfo::VexaPlotAreaTypeInfo()
    : XmlTypeInfo("VexaPlotArea", "plot-area", chartNamespace(), &initTypeInfo) {}

void VexaPlotArea::VexaPlotAreaTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaAreaObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "show-captions", space, &VexaPlotArea::showCaptions_, DefaultTrueBoolAttribute, false);
    addElementTypeInfo(info, "line-chart", space, &VexaPlotArea::charts_);
    addElementTypeInfo(info, "bar-chart", space, &VexaPlotArea::charts_);
    addElementTypeInfo(info, "area-chart", space, &VexaPlotArea::charts_);
    addElementTypeInfo(info, "category-axis", space, &VexaPlotArea::categoryAxis_);
    addElementTypeInfo(info, "value-axis", space, &VexaPlotArea::valueAxis_);
}

XmlObjectTypeInfo* VexaPlotArea::getTypeInfoInstance() {
    static Immortal<VexaPlotAreaTypeInfo> info;
    return &info.value;
}

VexaPlotArea& VexaPlotArea::of(const VexaObject& object) {
    XmlObject* above = object.getParent();
    while (above != nullptr && !above->isKindOf(typeID())) above = above->getParent();
    if (above == nullptr) throwEmptySmartPtr();
    return *static_cast<VexaPlotArea*>(above);
}

int VexaPlotArea::getSerieCount() {
    std::size_t count = 0;
    for (const auto& chart : charts_) count += chart->getSeries().size();
    return static_cast<int>(count);
}

VexaAxisObject& VexaPlotArea::getAxis(bool category) {
    if (category) return *categoryAxis_;
    return *valueAxis_;
}

VexaAxisObject* VexaPlotArea::getOtherAxis(bool category) {
    if (category) return valueAxis_.get();
    return categoryAxis_.get();
}

bool VexaPlotArea::isVerticalValueAxis() const {
    if (!valueAxis_ && !categoryAxis_) return true;
    return (valueAxis_ && valueAxis_->getOrientation() == AxisOrientation::Vertical) ||
           (categoryAxis_ && categoryAxis_->getOrientation() == AxisOrientation::Horizontal);
}

void VexaPlotArea::resolveOrientations() {
    switch (valueAxis_->getOrientation()) {
        case AxisOrientation::Automatic:
            break;
        case AxisOrientation::Vertical:
            return categoryAxis_->setOrientation(AxisOrientation::Horizontal);
        case AxisOrientation::Horizontal:
            return categoryAxis_->setOrientation(AxisOrientation::Vertical);
        default:
            refuseOrientation(*valueAxis_, 438);
    }
    switch (categoryAxis_->getOrientation()) {
        case AxisOrientation::Automatic:
            categoryAxis_->setOrientation(AxisOrientation::Horizontal);
            [[fallthrough]];
        case AxisOrientation::Horizontal:
            return valueAxis_->setOrientation(AxisOrientation::Vertical);
        case AxisOrientation::Vertical:
            return valueAxis_->setOrientation(AxisOrientation::Horizontal);
        default:
            refuseOrientation(*categoryAxis_, 427);
    }
}

RectF VexaPlotArea::getPlotRect(VexaRenderContext& context) {
    const SizeF size = getAreaSize(context);
    return {0, 0, size.width, size.height};
}

String VexaPlotArea::missingAxes() const {
    if (valueAxis_) return categoryAxis_ ? "" : R"("category-axis")";
    return categoryAxis_ ? R"("value-axis")" : R"("value-axis" and no "category-axis")";
}

void VexaPlotArea::preRender(VexaRenderContext&, SmartPtr<VexaTheme> theme) {
    if (theme.isEmpty()) return;
    int index = getSerieCount();
    for (const auto& chart : charts_) {
        for (const auto& serie : chart->getSeries()) {
            --index;  // the last series takes the first colour
            serie->setThemeFill(theme->getSerieFill(index));
            serie->setThemeStroke(theme->getSerieStroke(index));
            serie->setThemeLineStroke(theme->getLineChartStroke(index));
        }
    }
    setThemeFill(theme->getPlotFill());
    if (!valueAxis_ || !categoryAxis_)
        raise(NullPointerException(kNoAxis, {missingAxes()}), "SmartPtr", 118, getPlace());
    valueAxis_->setThemeStroke(theme->getAxisStroke());
    categoryAxis_->setThemeStroke(theme->getAxisStroke());
}

void VexaPlotArea::render(VexaRenderContext& context) {
    if (!valueAxis_ || !categoryAxis_) {
        Log::warning(kNoAxis, {missingAxes()}, getPlace());
        return;
    }
    const RenderContextScope scope(context.getRenderContext());
    resolveOrientations();
    valueAxis_->dropTexts();
    categoryAxis_->dropTexts();
    if (*labelsPosition_ == LabelsPosition::Fit && !isLaidOut_) layoutPlotRect(context);
    if (!hasRoom(context)) return;
    getData(false);  // with the groupings of the document: a bar chart of one series changes its own
    drawBackground(context);
    context.translate(*x_, *y_);
    drawGrid(context);
    for (const auto& chart : charts_) chart->render(context);
    valueAxis_->render(context);
    categoryAxis_->render(context);
    for (const auto& chart : charts_) chart->renderOverlay(context);
}

void VexaPlotArea::layoutPlotRect(VexaRenderContext& context) {
    outerRect_ = getAreaRect(context);
    setAreaRect(VEXA::layoutPlotRect(outerRect_, valueAxis_->getSpace(context), categoryAxis_->getSpace(context),
                                     {isView3DMode(), getSceneDepth()}));
    isLaidOut_ = true;
}

bool VexaPlotArea::hasRoom(VexaRenderContext& context) {
    const SizeF size = getAreaSize(context);
    if (size.width > 0 && size.height > 0) return true;
    Log::warning(kNoRoom, {size.width, size.height}, getPlace());
    return false;
}

void VexaPlotArea::drawBackground(VexaRenderContext& context) {
    const RenderContextScope scope(context.getRenderContext());
    updateRenderContext(context, ColorAspect::Normal, 0.5F);
    const RectF rect = getAreaRect(context);
    if (isView3DMode()) drawWalls(context, rect, getSceneDepth());
    context.drawRectangle(*x_, *y_, px(rect.width), px(rect.height), px(0), px(0));
}

void VexaPlotArea::drawWalls(VexaRenderContext& context, const RectF& rect, float depth) {
    const auto [x, y, width, height] = rect;
    const float foot = y + height;
    context.translate(Length(depth), Length(-depth));
    context.setFill(getFillBrush(ColorAspect::Darker, getAspectShading()));
    context.drawPolygon({{x, y}, {x, foot}, {x - depth, foot + depth}, {x - depth, y + depth}}, /*closed*/ true);
    context.setFill(getFillBrush(ColorAspect::Darker, getAspectShading()));
    const float right = x + width;
    context.drawPolygon({{x, foot}, {right, foot}, {right - depth, foot + depth}, {x - depth, foot + depth}},
                        /*closed*/ true);
    context.setFill(getFillBrush(ColorAspect::Normal, 0.5F));
}

void VexaPlotArea::drawGrid(VexaRenderContext& context) {
    const RenderContextScope scope(context.getRenderContext());
    const bool is3D = isView3DMode();
    if (is3D) context.translate(Length(getSceneDepth()), Length(-getSceneDepth()));
    valueAxis_->drawGridLines(context);
    categoryAxis_->drawGridLines(context);
    if (is3D) categoryAxis_->drawDepthEdges(context);
}

}  // namespace VEXA
