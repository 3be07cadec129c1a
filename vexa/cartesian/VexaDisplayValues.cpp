#include "vexa/cartesian/VexaDisplayValues.h"

#include <algorithm>

#include "vexa/cartesian/VexaPlotArea.h"
#include "vexa/support/core/Log.h"
#include "vexa/util/DateFormat.h"
#include "vexa/util/NumberFormat.h"

namespace VEXA {

namespace {

constexpr char kSource[] = "VexaDisplayValues";
constexpr int kPictureIsFull = 34076;
constexpr std::size_t kCharactersOfCorner = 2;  // as many bytes as a point: labels are kept until they are painted

[[noreturn]] void refuseOrientation(const VexaObject& owner, DisplayValOrientation orientation, int line) {
    const auto ordinal = static_cast<std::int32_t>(orientation);
    raise(UnreacheableCodeException(String("unknown label orientation " + std::to_string(ordinal))), kSource, line,
          owner.getPlace());
}

bool isKnown(DisplayValOrientation orientation) noexcept {
    return orientation >= DisplayValOrientation::Horizontal && orientation <= DisplayValOrientation::Diagonal;
}

}  // namespace

VexaDisplayValues::VexaDisplayValuesTypeInfo::VexaDisplayValuesTypeInfo()
    : XmlTypeInfo("VexaDisplayValues", "display-values", chartNamespace(), &initTypeInfo) {}

void VexaDisplayValues::VexaDisplayValuesTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "draw-values", space, &VexaDisplayValues::drawValues_, DefaultTrueBoolAttribute, false);
    addAttributeTypeInfo(info, "replace-values", space, &VexaDisplayValues::replaceValues_, DefaultTrueBoolAttribute,
                         false);
    addAttributeTypeInfo(info, "adjust-values", space, &VexaDisplayValues::adjustValues_, DefaultTrueBoolAttribute,
                         false);
    addAttributeTypeInfo(info, "draw-at-min", space, &VexaDisplayValues::drawAtMin_, DefaultTrueBoolAttribute, false);
    addAttributeTypeInfo(info, "offset", space, &VexaDisplayValues::offset_, DefaultCaptionOffset, false);
    addAttributeTypeInfo(info, "min", space, &VexaDisplayValues::min_, DefaultMinValue, true);
    addAttributeTypeInfo(info, "max", space, &VexaDisplayValues::max_, DefaultMaxValue, true);
    addAttributeTypeInfo(info, "placement", space, &VexaDisplayValues::placement_, DefaultDisplayValPlacement, false);
    addAttributeTypeInfo(info, "orientation", space, &VexaDisplayValues::orientation_, DefaultDisplayValOrientation,
                         false);
    addAttributeTypeInfo(info, "format", space, &VexaDisplayValues::format_, DefaultStringAttribute, false);
    addElementTypeInfo(info, "value", space, &VexaDisplayValues::values_);
}

XmlObjectTypeInfo* VexaDisplayValues::getTypeInfoInstance() {
    static Immortal<VexaDisplayValuesTypeInfo> info;
    return &info.value;
}

const LabelLayout& VexaDisplayValues::getLabels(VexaRenderContext& context) {
    const VexaAxisObject& axis = VexaAxisObject::of(*this);
    const AxisScale& scale = axis.getPlotArea().getScale(context, axis.isCategory());  // a new one drops the labels
    if (!labels_) labels_ = layoutLabels(context, scale);
    return *labels_;
}

LabelLayout VexaDisplayValues::layoutLabels(VexaRenderContext& context, const AxisScale& scale) {
    VexaAxisObject& axis = VexaAxisObject::of(*this);
    if (!isKnown(*orientation_) && !scale.values().empty())
        refuseOrientation(*this, *orientation_, axis.isVertical() ? 227 : 262);
    const RenderContextScope scope(context.getRenderContext());
    updateRenderContext(context, ColorAspect::Normal, 0.5F);
    const bool areTexts = axis.getPlotArea().getDataKind(axis.isCategory()) == ValueKind::Text;
    if (texts_.empty() || !areTexts) texts_ = measureTexts(context, scale.values());  // texts stay what they are
    const SizeF length = axis.getAxisLength(context);
    const Vector<float> positions = scale.labelPositions(length.width + length.height);
    for (std::size_t i = 0; i < texts_.size(); ++i) texts_[i].position = positions[i];
    return {{axis.isVertical(), axis.isAtMaximum(), *orientation_, offset_->pxSize()}, texts_, *adjustValues_};
}

Vector<LabelText> VexaDisplayValues::measureTexts(VexaRenderContext& context, const Vector<Value>& values) {
    const VexaAxisObject& axis = VexaAxisObject::of(*this);
    const ValueKind kind = axis.getPlotArea().getDataKind(axis.isCategory());
    const LabelTexts texts = makeTexts(kind);
    Vector<LabelText> measured;
    measured.reserve(values.size());
    for (const Value& value : values) {
        String text = texts.find(value);
        const std::size_t corners = kind == ValueKind::Text ? 0 : text.length() / kCharactersOfCorner;
        if (corners > 0 && context.takePolygons(1, corners) == 0) {
            Log::warning(kPictureIsFull, {axis.getTypeInfo()->getElementName()}, getPlace());
            break;
        }
        const SizeF size = context.measureText(text);
        measured.push_back({std::move(text), size, 0});
    }
    return measured;
}

LabelTexts VexaDisplayValues::makeTexts(ValueKind kind) {
    if (!*replaceValues_) return {String(), kind};
    checkFormat(kind);
    LabelTexts texts(*format_, kind);
    for (const auto& value : values_) texts.replace(value->getValue(), value->getDisplay());
    return texts;
}

void VexaDisplayValues::checkFormat(ValueKind kind) {
    if (isFormatChecked_ || format_->isEmpty()) return;
    isFormatChecked_ = true;
    if (kind == ValueKind::Number) checkNumberFormat(*format_, getPlace());
    if (kind == ValueKind::Date) checkDateFormat(*format_, getPlace());
}

RectF VexaDisplayValues::getLabelsRect(VexaRenderContext& context) {
    return *drawValues_ ? getLabels(context).box : RectF();
}

SizeF VexaDisplayValues::getLabelsSize(VexaRenderContext& context) {
    return *drawValues_ ? getLabels(context).size : SizeF();
}

SizeF VexaDisplayValues::getMaxValueTextSize(VexaRenderContext& context) {
    const RenderContextScope scope(context.getRenderContext());
    updateRenderContext(context, ColorAspect::Normal, 0.5F);
    SizeF largest;
    for (const auto& value : values_) {
        const SizeF size = context.measureText(value->getDisplay());
        largest = {std::max(largest.width, size.width), std::max(largest.height, size.height)};
    }
    return largest;
}

// Beside a vertical axis on the right texts read downward, else upward.
float VexaDisplayValues::getTurn(const VexaAxisObject& axis) const {
    const float direction = axis.isVertical() && axis.isAtMaximum() ? 1.0F : -1.0F;
    switch (*orientation_) {
        case DisplayValOrientation::Horizontal:
            return 0;
        case DisplayValOrientation::Perpendicular:
            return 90 * direction;
        case DisplayValOrientation::Diagonal:
            return 45 * direction;
    }
    refuseOrientation(*this, *orientation_, 83);
}

void VexaDisplayValues::render(VexaRenderContext& context) {
    if (!*drawValues_) return;
    const LabelLayout& layout = getLabels(context);
    if (layout.labels.empty()) return;
    const float turn = getTurn(VexaAxisObject::of(*this));
    const RenderContextScope scope(context.getRenderContext());
    updateRenderContext(context, ColorAspect::Normal, 0.5F);
    context.setStroke(nullptr);
    context.setFill(make<SolidColorBrush>(*captionColor_));
    for (const Label& label : layout.labels) {
        const RenderContextScope place(context.getRenderContext());
        context.translate(Length(label.anchor.x), Length(label.anchor.y));
        context.rotate(turn);
        context.drawText(label.text);
    }
}

}  // namespace VEXA
