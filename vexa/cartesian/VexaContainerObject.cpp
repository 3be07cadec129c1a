#include "vexa/cartesian/VexaContainerObject.h"

#include <numbers>

#include "vexa/cartesian/ChartPass.h"
#include "vexa/cartesian/VexaPlotArea.h"

namespace VEXA {

VexaContainerObject::VexaContainerObjectTypeInfo::VexaContainerObjectTypeInfo()
    : XmlTypeInfo("VexaContainerObject", "", chartNamespace(), &initTypeInfo, 7) {}

void VexaContainerObject::VexaContainerObjectTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "grouping", space, &VexaContainerObject::grouping_, DefaultSerieGrouping, false);
    addElementTypeInfo(info, "serie", space, &VexaContainerObject::series_);
}

XmlObjectTypeInfo* VexaContainerObject::getTypeInfoInstance() {
    static Immortal<VexaContainerObjectTypeInfo> info;
    return &info.value;
}

VexaContainerObject::VexaContainerObject(ContainerKind kind) noexcept : kind_(kind) {}

VexaContainerObject::~VexaContainerObject() = default;

VexaContainerObject& VexaContainerObject::of(const VexaObject& object) {
    XmlObject* above = object.getParent();
    while (above != nullptr && !above->isKindOf(typeID())) above = above->getParent();
    if (above == nullptr) throwEmptySmartPtr();
    return *static_cast<VexaContainerObject*>(above);
}

bool VexaContainerObject::isReversed(BarDirection) const { return *grouping_ == SerieGrouping::Stacked; }

void VexaContainerObject::clip(VexaRenderContext& context) {
    VexaPlotArea& plot = VexaPlotArea::of(*this);
    const float depth = plot.isView3DMode() ? plot.getSceneDepth() / std::numbers::sqrt2_v<float> : 0;
    const SizeF size = plot.getAreaSize(context);
    context.setClip(PathCommand::rectangle(-1, -depth - 1, size.width + depth + 1, size.height + depth + 1, 0, 0));
}

void VexaContainerObject::render(VexaRenderContext& context) {
    const RenderContextScope scope(context.getRenderContext());
    clip(context);
    auto pass = std::make_unique<ChartPass>(*this, context);
    const bool isBackward = isReversed(pass->direction());
    const std::size_t count = series_.size();
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t index = isBackward ? count - 1 - i : i;
        series_[index]->render(context, *pass, index);
    }
    pass_ = std::move(pass);
}

void VexaContainerObject::renderOverlay(VexaRenderContext& context) {
    VexaPlotArea::of(*this);  // a chart taken out of its plot since the first pass has nothing to be painted on
    const std::unique_ptr<ChartPass> pass = pass_ ? std::move(pass_) : std::make_unique<ChartPass>(*this, context);
    for (std::size_t i = 0; i < series_.size(); ++i) series_[i]->renderOverlay(context, *pass, i);
}

}  // namespace VEXA
