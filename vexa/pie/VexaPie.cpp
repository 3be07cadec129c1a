#include "vexa/pie/VexaPie.h"

#include <algorithm>
#include <cmath>

#include "vexa/pie/CaptionOverlap.h"
#include "vexa/pie/PieFit.h"
#include "vexa/support/core/Log.h"

namespace VEXA {

namespace {

constexpr float kSmallestReference = 30.0F;   // px, of a caption size in percent
constexpr float kSmallestAngle = -360.0F;     // degrees; one turn is added to a negative start angle, not two
constexpr float kLargestAngle = 16777216.0F;  // 2^24: beyond it a float does not tell one degree from the next

bool contains(const RectF& outer, const RectF& inner) noexcept {
    return outer.x <= inner.x && outer.y <= inner.y && inner.x + inner.width <= outer.x + outer.width &&
           inner.y + inner.height <= outer.y + outer.height;
}

}  // namespace

constinit const DefaultAttribute<LengthOrPercent> VexaPie::DefaultCaptionSize(LengthOrPercent::percent(0.15F));

VexaPie::VexaPieTypeInfo::VexaPieTypeInfo() : XmlTypeInfo("VexaPie", "pie", chartNamespace(), &initTypeInfo) {}

void VexaPie::VexaPieTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaAreaObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "start-angle", space, &VexaPie::startAngle_, DefaultFloatAttribute, false);
    addAttributeTypeInfo(info, "slice-orientation", space, &VexaPie::sliceOrientation_, DefaultSliceOrientation, false);
    addAttributeTypeInfo(info, "pie-shape", space, &VexaPie::pieShape_, DefaultPieShapeType, false);
    addAttributeTypeInfo(info, "show-connectors", space, &VexaPie::showConnectors_, DefaultFalseBoolAttribute, false);
    addAttributeTypeInfo(info, "connectors-color", space, &VexaPie::connectorsColor_, DefaultFillColor, false);
    addAttributeTypeInfo(info, "show-captions", space, &VexaPie::showCaptions_, DefaultTrueBoolAttribute, false);
    addAttributeTypeInfo(info, "caption-size", space, &VexaPie::captionSize_, DefaultCaptionSize, false);
    addAttributeTypeInfo(info, "caption-wrap", space, &VexaPie::captionWrap_, DefaultTrueBoolAttribute, false);
    addAttributeTypeInfo(info, "caption-placement", space, &VexaPie::captionPlacement_, DefaultCaptionPlacement, true);
    addElementTypeInfo(info, "slice", space, &VexaPie::slices_);
}

XmlObjectTypeInfo* VexaPie::getTypeInfoInstance() {
    static Immortal<VexaPieTypeInfo> info;
    return &info.value;
}

VexaPie& VexaPie::of(const VexaSlice& slice) {
    XmlObject* const parent = slice.getParent();
    if (parent == nullptr || !parent->isKindOf(typeID())) throwEmptySmartPtr();
    return *static_cast<VexaPie*>(parent);
}

int VexaPie::getSerieCount() { return static_cast<int>(slices_.size()); }

void VexaPie::preRender(VexaRenderContext&, SmartPtr<VexaTheme> theme) {
    if (theme.isEmpty()) return;
    int index = 0;
    for (auto slice = slices_.rbegin(); slice != slices_.rend(); ++slice, ++index) {
        (*slice)->setThemeFill(theme->getSerieFill(index));
        (*slice)->setThemeStroke(theme->getSerieStroke(index));
    }
}

float VexaPie::getCaptionSize() const { return captionSize_->pxSize(std::max(kSmallestReference, pieSide(areaRect_))); }

const SmartPtr<Stroke>& VexaPie::getConnectorStroke() {
    if (connectorStroke_.isEmpty()) connectorStroke_ = make<Stroke>(make<SolidColorBrush>(*connectorsColor_), 1.0F);
    return connectorStroke_;
}

void VexaPie::render(VexaRenderContext& context) {
    const RenderContextScope scope(context.getRenderContext());
    connectorStroke_ = nullptr;  // its colour may have been changed since the last render
    areaRect_ = getAreaRect(context);
    if (*labelsPosition_ == LabelsPosition::Fit && !fitted_) fit(context);
    const bool isPainted = layoutSlices(context);
    if (isPainted && hasCaptions() && !captionsChecked_) checkCaptions(context);
    drawBackground(context);
    if (!isPainted) return;
    context.translate(*x_, *y_);
    drawSlices(context);
    if (!hasCaptions()) return;
    for (const auto& slice : slices_) slice->drawCaption(context);
}

void VexaPie::fit(VexaRenderContext& context) {
    fitted_ = true;
    const std::optional<float> margin = *showCaptions_ ? std::optional(takeCaptionMargin()) : std::nullopt;
    const PieFit place = fitPie(areaRect_, isView3DMode(), margin);
    captionsFit_ = place.captionsFit;
    const auto hasCaption = [](const auto& slice) { return slice->hasCaption(); };
    if (!captionsFit_ && std::any_of(slices_.begin(), slices_.end(), hasCaption))
        Log::warning(34042, {areaRect_.width, areaRect_.height}, getPlace());
    setAreaRect(place.box);
    context.setClip(PathCommand::rectangle(areaRect_.x, areaRect_.y, areaRect_.width, areaRect_.height, 0, 0));
}

/// Fixes the caption size in px, since a percentage is one of the area that the pie is about to give up.
float VexaPie::takeCaptionMargin() {
    const float size = captionSize_->pxSize(pieSide(areaRect_));
    captionSize_.setValue(LengthOrPercent(Length(size)));
    if (slices_.isEmpty()) return size;
    float offset = slices_[0]->getCaptionOffset();
    for (const auto& slice : slices_) offset = std::max(offset, slice->getCaptionOffset());
    return offset + size;
}

double VexaPie::getTotal() const {
    double total = 0;
    for (const auto& slice : slices_) total += slice->getAbsValue();
    return total;
}

/// False when only the background can be painted.
bool VexaPie::layoutSlices(VexaRenderContext& context) {
    SizeF size = getAreaSize(context);
    if (isView3DMode()) size.height -= getChartDepth();
    const double total = getTotal();
    if (!canPaint(size, total)) return false;
    if (*startAngle_ < kSmallestAngle || *startAngle_ > kLargestAngle) Log::warning(34043, {*startAngle_}, getPlace());
    SliceCutter cutter(size, *startAngle_, *sliceOrientation_, *pieShape_, total);
    for (const auto& slice : slices_) {
        slice->setGeometry(cutter.next(slice->getAbsValue()));
        slice->layoutCaption(context);
    }
    return true;
}

bool VexaPie::canPaint(const SizeF& size, double total) const {
    if (!(total > 0) || !std::isfinite(total)) {
        Log::warning(34040, {}, getPlace());
        return false;
    }
    const auto isExtent = [](float length) { return length > 0 && std::isfinite(length); };
    if (isExtent(size.width) && isExtent(size.height)) return true;
    Log::warning(34041, {size.width, size.height}, getPlace());
    return false;
}

void VexaPie::checkCaptions(VexaRenderContext& context) {
    captionsChecked_ = true;
    const RectF area = getAreaRect(context);
    std::int64_t outside = 0;
    std::int64_t cut = 0;
    for (const auto& slice : slices_) {
        const bool leaves = leavesArea(slice->getCaptionRect(), {area.x, area.y});
        if (leaves) slice->hideCaption();
        if (slice->isCaptionCut()) {
            ++cut;
        } else if (leaves && slice->hasCaption()) {
            ++outside;
        }
    }
    if (outside > 0) Log::warning(34044, {outside}, getPlace());
    if (cut > 0) Log::warning(34045, {getCaptionSize(), cut}, getPlace());
    hideCaptionsThatOverlap();
}

/// Whether a box at a place in the pie leaves what was its area before it was fitted.
bool VexaPie::leavesArea(RectF box, PointF origin) const {
    if (*labelsPosition_ != LabelsPosition::Fit) return false;
    box.x += origin.x;
    box.y += origin.y;
    return !contains(areaRect_, box);
}

void VexaPie::hideCaptionsThatOverlap() {
    Vector<VexaSlice*> shown;
    Vector<RectF> boxes;
    for (const auto& slice : slices_) {
        if (!slice->isCaptionVisible()) continue;
        shown.push_back(slice.get());
        boxes.push_back(slice->getCaptionRect());
    }
    const Vector<bool> stays = boxesWithoutOverlap(boxes);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        if (stays[i]) continue;
        shown[i]->hideCaption();
        if (shown[i]->hasCaption()) ++overlapped_;
    }
}

void VexaPie::drawSlices(VexaRenderContext& context) {
    if (isView3DMode() && isDoughnut()) {
        for (const auto& slice : slices_) slice->drawInnerWall(context);
    }
    for (const auto& slice : slices_) slice->render(context);
    if (!isView3DMode()) return;
    for (const auto& slice : slices_) slice->drawOuterWall(context);
}

}  // namespace VEXA
