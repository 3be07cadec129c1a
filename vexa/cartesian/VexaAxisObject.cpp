#include "vexa/cartesian/VexaAxisObject.h"

#include <algorithm>

#include "vexa/cartesian/VexaPlotArea.h"
#include "vexa/support/core/Log.h"
#include "vexa/support/core/QuotedText.h"

namespace VEXA {

namespace {

constexpr char kSource[] = "VexaAxisObject";
constexpr int kOtherBound = 34073;
constexpr int kReversed = 34074;

SizeF largest(const SizeF& a, const SizeF& b) noexcept {
    return {std::max(a.width, b.width), std::max(a.height, b.height)};
}

}  // namespace

VexaAxisObject::VexaAxisObjectTypeInfo::VexaAxisObjectTypeInfo()
    : XmlTypeInfo("VexaAxisObject", "", chartNamespace(), &initTypeInfo, 8) {}

void VexaAxisObject::VexaAxisObjectTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "orientation", space, &VexaAxisObject::orientation_, DefaultAxisOrientation, false);
    addAttributeTypeInfo(info, "intersection", space, &VexaAxisObject::intersection_, DefaultAxisIntersection, false);
    addAttributeTypeInfo(info, "caption", space, &VexaAxisObject::caption_, DefaultStringAttribute, false);
    addAttributeTypeInfo(info, "unit", space, &VexaAxisObject::unit_, DefaultAxisUnits, false);
    addAttributeTypeInfo(info, "data-type", space, &VexaAxisObject::dataType_, DefaultAxisDataType, false);
    addAttributeTypeInfo(info, "min", space, &VexaAxisObject::min_, DefaultMinValue, true);
    addAttributeTypeInfo(info, "max", space, &VexaAxisObject::max_, DefaultMaxValue, true);
    addElementTypeInfo(info, "tick-marks", space, &VexaAxisObject::tickMarks_);
    addElementTypeInfo(info, "display-values", space, &VexaAxisObject::displayValues_);
    addElementTypeInfo(info, "grid-lines", space, &VexaAxisObject::gridLines_);
}

XmlObjectTypeInfo* VexaAxisObject::getTypeInfoInstance() {
    static Immortal<VexaAxisObjectTypeInfo> info;
    return &info.value;
}

VexaAxisObject::~VexaAxisObject() = default;

VexaAxisObject& VexaAxisObject::of(const VexaObject& child) {
    XmlObject* const parent = child.getParent();
    if (parent == nullptr || !parent->isKindOf(typeID())) throwEmptySmartPtr();
    return *static_cast<VexaAxisObject*>(parent);
}

VexaPlotArea& VexaAxisObject::getPlotArea() const { return VexaPlotArea::of(*this); }

void VexaAxisObject::setOrientation(AxisOrientation orientation) {
    if (*orientation_ != orientation) orientation_.setValue(orientation);
}

void VexaAxisObject::setThemeStroke(SmartPtr<Stroke> stroke) {
    if (tickMarks_) tickMarks_->setThemeStroke(stroke);
    if (gridLines_) gridLines_->setThemeStroke(stroke);
    VexaElementObject::setThemeStroke(std::move(stroke));
}

DisplayValPlacement VexaAxisObject::getPlacement() const {
    return displayValues_ ? displayValues_->getPlacement() : DisplayValPlacement::OnTicks;
}

bool VexaAxisObject::hasMin() { return displayValues_ && !getUsableBounds().min.isNone(); }
bool VexaAxisObject::hasMax() { return displayValues_ && !getUsableBounds().max.isNone(); }

AxisRange VexaAxisObject::getBounds() const {
    return displayValues_ ? displayValues_->getRange() : AxisRange{*min_, *max_};
}

AxisRange VexaAxisObject::getUsableBounds() {
    return usableBounds(getBounds(), getPlotArea().getDataKind(isCategory_));
}

const AxisRange& VexaAxisObject::getRange() {
    if (!isRangeDirty_) return range_;
    const AxisRange data = getPlotArea().getAxisRange(isCategory_);
    const AxisRange bounds = getUsableBounds();
    range_ = boundedRange(data, bounds);
    tellBounds(bounds);
    if (isReversed(range_)) range_ = data;
    isRangeDirty_ = false;
    return range_;
}

void VexaAxisObject::tellBounds(const AxisRange& usable) {
    const AxisRange given = getBounds();
    const String name = getTypeInfo()->getElementName();
    const String kind = getPlotArea().getDataKind(isCategory_) == ValueKind::Date ? "date" : "number";
    const auto tellUnusable = [&](const char* which, const Value& bound) {
        Log::warning(kOtherBound, {String(which), name, quoteForMessage(bound.getValue()), kind}, getPlace());
    };
    if (!(given.min == usable.min)) tellUnusable("min", given.min);
    if (!(given.max == usable.max)) tellUnusable("max", given.max);
    const AxisRange wanted{range_.min, usable.max.isNone() ? range_.max : usable.max};
    if (isReversed(wanted)) Log::warning(kReversed, {name, wanted.min.getValue(), wanted.max.getValue()}, getPlace());
}

void VexaAxisObject::setRange(AxisRange range) {
    range_ = std::move(range);
    isRangeDirty_ = false;
}

float VexaAxisObject::getRelativePosition(const Value& value) {
    VexaPlotArea& plot = getPlotArea();
    const AxisScale::Traits traits{plot.getDataKind(isCategory_), isVertical(), /*isBetweenTicks*/ false};
    return AxisScale(traits, getRange(), {}, plot.getData(isCategory_).texts()).relativePosition(value);
}

float VexaAxisObject::getSlotWidth(VexaRenderContext& context, float length) {
    return getPlotArea().getScale(context, isCategory_).slotWidth(length);
}

SizeF VexaAxisObject::getAxisLength(VexaRenderContext& context) {
    const RectF plot = getPlotArea().getPlotRect(context);
    return isVertical() ? SizeF{0, plot.height} : SizeF{plot.width, 0};
}

RectF VexaAxisObject::getAxisRect(VexaRenderContext& context) {
    const float across = getPlotArea().getAxis(!isCategory_).getCrossOffset(context);
    const auto [width, height] = getAxisLength(context);
    return isVertical() ? RectF{across, 0, 0, height} : RectF{0, across, width, 0};
}

float VexaAxisObject::getCrossOffset(VexaRenderContext& context) {
    const SizeF size = getAxisLength(context);
    const float length = size.width + size.height;
    const VexaAxisObject& other = getPlotArea().getAxis(!isCategory_);
    switch (other.getIntersection()) {
        case AxisIntersection::AtMaximum:
            return isVertical() ? 0 : length;
        case AxisIntersection::AtMinimum:
            return isVertical() ? length : 0;
        case AxisIntersection::AtCrossValue:
            return getPlotArea().getCrossPosition(context, length, isCategory_);
    }
    const auto ordinal = static_cast<std::int32_t>(other.getIntersection());
    raise(UnreacheableCodeException(String("unknown axis intersection " + std::to_string(ordinal))), kSource,
          isVertical() ? 396 : 411, other.getPlace());
}

SizeF VexaAxisObject::getCaptionSize(VexaRenderContext& context) {
    if (caption_->trim().isEmpty()) return {};
    const RenderContextScope scope(context.getRenderContext());
    updateRenderContext(context, ColorAspect::Normal, 0.5F);
    const SizeF text = context.measureText(*caption_);
    return {text.width, text.height + captionOffset_->pxSize() + context.getTextDescent()};
}

float VexaAxisObject::getTickExtent() { return tickMarks_ ? tickMarks_->getExtent() : 0; }

RectF VexaAxisObject::getLabelsRect(VexaRenderContext& context) {
    return displayValues_ ? displayValues_->getLabelsRect(context) : RectF();
}

SizeF VexaAxisObject::getMaxLabelSize(VexaRenderContext& context) {
    const AxisRange& range = getRange();
    const RenderContextScope scope(context.getRenderContext());
    updateRenderContext(context, ColorAspect::Normal, 0.5F);
    SizeF size = largest(context.measureText(range.min.getValue()), context.measureText(range.max.getValue()));
    if (displayValues_) size = largest(size, displayValues_->getMaxValueTextSize(context));
    return size;
}

AxisSpace VexaAxisObject::getSpace(VexaRenderContext& context) {
    return {isVertical(), isAtMaximum(), getLabelsRect(context), getCaptionSize(context).height, getTickExtent()};
}

void VexaAxisObject::dropLabels() {
    if (displayValues_) displayValues_->dropLabels();
}

void VexaAxisObject::dropTexts() {
    if (displayValues_) displayValues_->dropTexts();
}

}  // namespace VEXA
