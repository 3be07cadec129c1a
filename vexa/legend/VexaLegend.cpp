#include "vexa/legend/VexaLegend.h"

#include <algorithm>
#include <string>

#include "vexa/legend/LegendLayout.h"
#include "vexa/support/core/Log.h"

namespace VEXA {

VexaLegend::VexaLegendTypeInfo::VexaLegendTypeInfo()
    : XmlTypeInfo("VexaLegend", "legend", chartNamespace(), &initTypeInfo) {}

void VexaLegend::VexaLegendTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaAreaObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "orientation", space, &VexaLegend::orientation_, DefaultReferenceOrientation, false);
    addAttributeTypeInfo(info, "legend-placement", space, &VexaLegend::legendPlacement_, DefaultLegendPlacement, false);
    addAttributeTypeInfo(info, "padding", space, &VexaLegend::padding_, DefaultLength, true);
    addElementTypeInfo(info, "legend-item", space, &VexaLegend::items_);
}

XmlObjectTypeInfo* VexaLegend::getTypeInfoInstance() {
    static Immortal<VexaLegendTypeInfo> info;
    return &info.value;
}

void VexaLegend::preRender(VexaRenderContext&, SmartPtr<VexaTheme> theme) {
    if (theme.isEmpty()) return;
    int index = 0;
    for (auto item = items_.rbegin(); item != items_.rend(); ++item, ++index) {
        (*item)->setThemeFill(theme->getSerieFill(index));
        (*item)->setThemeStroke(theme->getSerieStroke(index));
        (*item)->setThemeLineStroke(theme->getLineChartStroke(index));
    }
}

void VexaLegend::render(VexaRenderContext& context) {
    const RenderContextScope scope(context.getRenderContext());
    arrange(context);
    drawBackground(context);
    context.translate(*x_, *y_);
    const SizeF size = getAreaSize(context);
    const float line = getStrokeWidth();  // half of the outline lies outside the box
    context.setClip(PathCommand::rectangle(-line / 2, -line / 2, size.width + line, size.height + line, 0, 0));
    turn(context, size);
    for (const auto& item : items_) item->render(context);
}

void VexaLegend::arrange(VexaRenderContext& context) {
    const bool isDocked = *legendPlacement_ != LegendPlacement::Free;
    if (isDocked) setAreaRect(dockLegend(*legendPlacement_, getAreaRect(context), getPage().getAreaSize(context)));
    Vector<RectF> items = layoutItems(context);
    if (isDocked) fit(context, items);
    tellHidden(context, items);
}

// Every area can say how large it is, so the legend need not know more of the root.
VexaAreaObject& VexaLegend::getPage() {
    XmlObject* const top = getVexaRoot();
    if (top == this || !top->isKindOf(VexaAreaObject::typeID())) throwEmptySmartPtr();
    return *static_cast<VexaAreaObject*>(top);
}

Vector<RectF> VexaLegend::layoutItems(VexaRenderContext& context) {
    const float padding = padding_->pxSize();
    const float room = legendRoom(getAreaSize(context), *orientation_, padding);
    Vector<LegendItemSize> sizes;
    sizes.reserve(items_.size());
    for (const auto& item : items_) {
        item->setMaxWidth(room);
        const RectF rect = item->layout(context);
        sizes.push_back(
            {item->getItemSize(context).width, item->getLabelSpacing().pxSize(), {rect.width, rect.height}});
    }
    Vector<RectF> rects = layoutLegendItems(sizes, padding, room);
    for (std::size_t i = 0; i < rects.size(); ++i) items_[i]->setItemRect(rects[i]);
    return rects;
}

// The items' own rectangles stay those of the layout.
void VexaLegend::fit(VexaRenderContext& context, Vector<RectF>& items) {
    const LegendFit fitted = fitLegend(*legendPlacement_, getAreaRect(context), items);
    for (std::size_t i = 0; i < items.size(); ++i) {
        items[i].y += fitted.shift;
        items_[i]->setPosition({items[i].x, items[i].y});
    }
    setAreaRect(fitted.area);
}

void VexaLegend::tellHidden(VexaRenderContext& context, const Vector<RectF>& items) {
    const auto captions = std::count_if(items_.begin(), items_.end(), [](const auto& i) { return i->isCaptionCut(); });
    if (captions > 0) Log::warning(34050, {static_cast<std::int64_t>(captions)}, getPlace());
    const std::size_t hidden = countHiddenItems(items, *orientation_, getAreaRect(context), context.getPage());
    if (hidden > 0) Log::warning(34051, {static_cast<std::int64_t>(hidden)}, getPlace());
}

void VexaLegend::turn(VexaRenderContext& context, const SizeF& box) {
    const auto turn = legendTurn(*orientation_, box);
    if (!turn.has_value()) {
        const std::string what = "orientation " + std::to_string(static_cast<std::int32_t>(*orientation_));
        raise(UnreacheableCodeException(String(what + " is unknown")), "VexaLegend", 85, getPlace());
    }
    context.translate(Length(turn->offset.x), Length(turn->offset.y));
    context.rotate(turn->degrees);
}

}  // namespace VEXA
