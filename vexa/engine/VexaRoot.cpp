#include "vexa/engine/VexaRoot.h"

namespace VEXA {

VexaRoot::VexaRootTypeInfo::VexaRootTypeInfo() : XmlTypeInfo("VexaRoot", "root", chartNamespace(), &initTypeInfo) {
    VexaObject::setRootTypeId(typeID());
}

void VexaRoot::VexaRootTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaAreaObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "viewBox", space, &VexaRoot::viewBox_, DefaultViewBox, false);
    addElementTypeInfo(info, "plot-area", space, &VexaRoot::bodies_);
    addElementTypeInfo(info, "pie", space, &VexaRoot::bodies_);
    addElementTypeInfo(info, "spider", space, &VexaRoot::bodies_);
    addElementTypeInfo(info, "legend", space, &VexaRoot::legend_);
    addElementTypeInfo(info, "title", space, &VexaRoot::title_);
    addElementTypeInfo(info, "defs", space, &VexaRoot::defs_);
}

XmlObjectTypeInfo* VexaRoot::getTypeInfoInstance() {
    static Immortal<VexaRootTypeInfo> info;
    return &info.value;
}

void VexaRoot::render(VexaRenderContext&) {}

void VexaRoot::render(SmartPtr<RenderContext> surface, float width, float height) {
    const SizeF size{getWidth(width), getHeight(height)};
    VexaRenderContext context(surface, size.width, size.height);
    const RenderContextScope scope(surface);
    context.translate(*x_, *y_);
    context.setClip(PathCommand::rectangle(-1, -1, size.width + 1, size.height + 1, 0, 0));
    if (!(viewBox_ == DefaultViewBox)) {
        context.applyViewBox(LengthOrPercent(Length(size.width)), LengthOrPercent(Length(size.height)), *viewBox_,
                             getPlace());
    }
    preRender(context, nullptr);
    drawBackground(context);
    renderChildren(context);
}

void VexaRoot::renderChildren(VexaRenderContext& context) {
    for (const auto& body : bodies_) {
        if (VexaAreaObject* const area = asArea(body)) area->render(context);
    }
    if (title_) title_->render(context);
    if (legend_) legend_->render(context);
}

void VexaRoot::preRender(VexaRenderContext& context, SmartPtr<VexaTheme>) {
    if (*theme_ == ChartTheme::None || !needsPreRender_) return;
    VexaAreaObject* const body = firstBody();
    const SmartPtr<VexaTheme> theme = make<VexaTheme>(*theme_);
    theme->intialize(body == nullptr ? 0 : body->getSerieCount());
    if (body != nullptr) body->preRender(context, theme);
    if (legend_) legend_->preRender(context, theme);
    needsPreRender_ = false;
}

void VexaRoot::drawBackground(VexaRenderContext& context) {
    const RenderContextScope scope(context.getRenderContext());
    updateRenderContext(context, ColorAspect::Normal, 0.5F);
    context.drawRectangle(*x_, *y_, *width_, *height_, LengthOrPercent(), LengthOrPercent());
}

XmlObjPtr<VexaObject> VexaRoot::findObject(const String& id) {
    for (const auto& defs : defs_) {
        if (XmlObjPtr<VexaObject> found = defs->findObject(id)) return found;
    }
    return nullptr;
}

VexaAreaObject* VexaRoot::asArea(const XmlObjPtr<XmlObject>& body) {
    return body->isKindOf(VexaAreaObject::typeID()) ? static_cast<VexaAreaObject*>(body.get()) : nullptr;
}

VexaAreaObject* VexaRoot::firstBody() const {
    for (const auto& body : bodies_) {
        if (VexaAreaObject* const area = asArea(body)) return area;
    }
    return nullptr;
}

}  // namespace VEXA
