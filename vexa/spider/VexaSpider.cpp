#include "vexa/spider/VexaSpider.h"

#include <algorithm>

#include "vexa/support/core/Limits.h"
#include "vexa/support/core/Log.h"

namespace VEXA {

namespace {

constexpr StyleLocations kLocations{"VexaSpider", 159, 159, 159, 159, 159, 159};
constexpr std::size_t kLeastRingCorners = 16;  // what a ring costs even with fewer: ten thousand need one attribute

}  // namespace

VexaSpider::VexaSpiderTypeInfo::VexaSpiderTypeInfo()
    : XmlTypeInfo("VexaSpider", "spider", chartNamespace(), &initTypeInfo) {}

void VexaSpider::VexaSpiderTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaAreaObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "unit-frequency", space, &VexaSpider::unitFrequency_, DefaultFloatAttribute, false);
    addAttributeTypeInfo(info, "draw-web", space, &VexaSpider::drawWeb_, DefaultTrueBoolAttribute, false);
    addAttributeTypeInfo(info, "web-stroke", space, &VexaSpider::webStroke_, DefaultSFillColor, false);
    addAttributeTypeInfo(info, "web-stroke-opacity", space, &VexaSpider::webStrokeOpacity_, DefaultFloatOrPercent,
                         false);
    addAttributeTypeInfo(info, "web-stroke-width", space, &VexaSpider::webStrokeWidth_, DefaultStrokeWidth, false);
    addAttributeTypeInfo(info, "web-stroke-linecap", space, &VexaSpider::webLineCap_, DefaultSLineCap, false);
    addAttributeTypeInfo(info, "web-stroke-linejoin", space, &VexaSpider::webLineJoin_, DefaultSLineJoin, false);
    addAttributeTypeInfo(info, "web-stroke-miterlimit", space, &VexaSpider::webMiterLimit_, DefaultMiterLimit, false);
    addAttributeTypeInfo(info, "web-stroke-dasharray", space, &VexaSpider::webDashArray_, DefaultSDashPattern, false);
    addAttributeTypeInfo(info, "web-stroke-dashoffset", space, &VexaSpider::webDashOffset_, DefaultLength, false);
    addElementTypeInfo(info, "spider-serie", space, &VexaSpider::series_);
    addElementTypeInfo(info, "spider-axis", space, &VexaSpider::axes_);
}

XmlObjectTypeInfo* VexaSpider::getTypeInfoInstance() {
    static Immortal<VexaSpiderTypeInfo> info;
    return &info.value;
}

VexaSpider& VexaSpider::of(const VexaObject& child) {
    XmlObject* const parent = child.getParent();
    if (parent == nullptr || !parent->isKindOf(typeID())) throwEmptySmartPtr();
    return *static_cast<VexaSpider*>(parent);
}

void VexaSpider::preRender(VexaRenderContext&, SmartPtr<VexaTheme>) {}

int VexaSpider::getSerieCount() { return static_cast<int>(series_.size()); }

float VexaSpider::getRadius(VexaRenderContext& context) {
    const SizeF size = getAreaSize(context);
    return std::min(size.width / 2, size.height / 2);
}

SpiderScale VexaSpider::getDataScale() const {
    SpiderExtent values;
    if (!axes_.isEmpty()) {
        for (const auto& serie : series_) values.add(serie->getDataRange());
    }
    return spiderDataScale(values);
}

SpiderScale VexaSpider::getValueRange() const {
    SpiderExtent bounds;
    for (const auto& axis : axes_) bounds.add({axis->getMin(), axis->getMax()});
    return spiderScale(getDataScale(), bounds);
}

float VexaSpider::getPosition(float value) const { return getValueRange().position(value); }

SpiderLayout VexaSpider::getLayout(VexaRenderContext& context) {
    return {axes_.size(), getRadius(context), getValueRange()};
}

Vector<float> VexaSpider::getWebValues(VexaRenderContext& context) { return getWebValues(getLayout(context)); }

Vector<float> VexaSpider::getWebValues(const SpiderLayout& layout) {
    const float step = spiderRingStep(layout.scale(), layout.radius(), *unitFrequency_);
    WebRings rings = spiderWebRings(layout.scale(), step, spiderMostRings(layout.axisCount()));
    if (rings.isThinned) Log::warning(34012, {rings.wanted}, getPlace());
    return std::move(rings.values);
}

void VexaSpider::render(VexaRenderContext& context) {
    const RenderContextScope scope(context.getRenderContext());
    drawBackground(context);
    context.translate(*x_, *y_);
    const SizeF size = getAreaSize(context);
    context.translate(Length(size.width / 2), Length(size.height / 2));
    if (!series_.isEmpty() && !axes_.isEmpty()) drawChart(context);
}

void VexaSpider::drawChart(VexaRenderContext& context) {
    const SpiderLayout layout = getLayout(context);
    const std::size_t lostRings = *drawWeb_ ? drawWeb(context, layout) : 0;
    const std::size_t lostSeries = drawSeries(context, layout);
    if (lostRings + lostSeries > 0) {
        const VariantArray lost{static_cast<std::int64_t>(lostRings), static_cast<std::int64_t>(lostSeries),
                                static_cast<std::int64_t>(Limits::kPictureCorners)};
        Log::warning(34015, lost, getPlace());
    }
    int index = 0;
    for (const auto& axis : axes_) {
        axis->setIndex(++index);
        axis->render(context);
    }
}

std::size_t VexaSpider::drawWeb(VexaRenderContext& context, const SpiderLayout& layout) {
    context.setFill(nullptr);
    context.setStroke(makeWebStroke());
    const Vector<float> values = getWebValues(layout);
    const std::size_t lost =
        values.size() - context.takePolygons(values.size(), std::max(layout.axisCount(), kLeastRingCorners));
    for (std::size_t i = lost; i < values.size(); ++i) context.drawPolygon(layout.ring(values[i]), /*closed*/ true);
    context.setStroke(nullptr);
    return lost;
}

std::size_t VexaSpider::drawSeries(VexaRenderContext& context, const SpiderLayout& layout) {
    const SpiderAxisIndex axes(axes_);
    const std::size_t drawn = context.takePolygons(series_.size(), layout.axisCount());
    for (std::size_t i = 0; i < drawn; ++i) series_[i]->render(context, layout, axes);
    return series_.size() - drawn;
}

SmartPtr<Stroke> VexaSpider::makeWebStroke() {
    if (webStroke_->getType() == SColorType::None) {
        raise(UnreacheableCodeException(String::loadString(34013)), kLocations.source, kLocations.strokeType,
              getPlace());
    }
    // A web has one opacity: the area's overall one is for its background.
    return PaintStyle(*this, kLocations)
        .makeStroke(*webStroke_,
                    {webStrokeWidth_,
                     webLineCap_,
                     webLineJoin_,
                     webMiterLimit_,
                     webDashArray_,
                     webDashOffset_,
                     {webStrokeOpacity_, webStrokeOpacity_}},
                    ColorAspect::Normal, 0.5F);
}

}  // namespace VEXA
