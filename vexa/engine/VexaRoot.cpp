#include "vexa/engine/VexaRoot.h"

#include <cmath>

#include "vexa/engine/MissingCharacters.h"
#include "vexa/support/core/Limits.h"
#include "vexa/support/core/Log.h"
#include "vexa/support/core/NearestName.h"
#include "vexa/support/core/QuotedText.h"
#include "vexa/support/drawing/FontService.h"

namespace VEXA {

VexaRoot::VexaRootTypeInfo::VexaRootTypeInfo() : XmlTypeInfo("VexaRoot", "root", chartNamespace(), &initTypeInfo) {
    VexaObject::setRoot(typeID(), [](const XmlObject& root, const String& reference) {
        return static_cast<const VexaRoot&>(root).findNearestReference(reference);
    });
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
    paint(surface, width, height, [](VexaObject&, VexaRenderContext&, const auto& step) { step(); });
}

void VexaRoot::render(SmartPtr<RenderContext> surface, float width, float height, PaintWatch& watch) {
    paint(surface, width, height,
          [&](VexaObject& part, VexaRenderContext& context, const auto& step) { watch.paint(part, context, step); });
}

template <class Guard>
void VexaRoot::paint(const SmartPtr<RenderContext>& surface, float width, float height, const Guard& guard) {
    FontManager::takeMissing();  // of a picture that an exception ended
    const SizeF size{getWidth(width), getHeight(height)};
    VexaRenderContext context(surface, size.width, size.height);
    const RenderContextScope scope(surface);
    context.translate(*x_, *y_);
    context.setClip(PathCommand::rectangle(-1, -1, size.width + 1, size.height + 1, 0, 0));
    guard(*this, context, [&] {
        if (!(viewBox_ == DefaultViewBox)) {
            context.applyViewBox(LengthOrPercent(Length(size.width)), LengthOrPercent(Length(size.height)), *viewBox_,
                                 getPlace());
        }
        tellEmptyPicture(size, surface->state().transform);
    });
    guard(*this, context, [&] { preRender(context, nullptr); });
    guard(*this, context, [&] { drawBackground(context); });
    paintParts(context, guard);
    tellMissingCharacters(FontManager::takeMissing(), getPlace());
}

template <class Guard>
void VexaRoot::paintParts(VexaRenderContext& context, const Guard& guard) {
    const auto paintPart = [&](VexaObject& part) { guard(part, context, [&] { part.render(context); }); };
    for (const auto& body : bodies_) {
        if (VexaAreaObject* const area = asArea(body)) paintPart(*area);
    }
    if (title_) paintPart(*title_);
    if (legend_) paintPart(*legend_);
}

// The picture is drawn all the same: a surface may know what to make of it.
void VexaRoot::tellEmptyPicture(const SizeF& page, const Matrix& transform) const {
    const auto isExtent = [](float length) { return length > 0 && std::isfinite(length); };
    if (!isExtent(page.width) || !isExtent(page.height)) {
        Log::warning(34017, {page.width, page.height}, getPlace());
    } else if (!transform.isFinite() && !(viewBox_ == DefaultViewBox)) {
        Log::warning(34018, {String(ValueTraits<ViewBox>::print(*viewBox_))}, getPlace());
    }
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

// What asking each defs in turn would find, without a walk over all definitions for each reference.
XmlObjPtr<VexaObject> VexaRoot::findObject(const String& id) {
    if (id.isEmpty() || id[0] != U'#') return nullptr;
    if (!hasDefinitionIndex_) indexDefinitions();
    const auto found = definitions_.find(id.subString(1));
    return found == definitions_.end() ? nullptr : XmlObjPtr<VexaObject>(found->second);
}

void VexaRoot::indexDefinitions() {
    for (const auto& defs : defs_) {
        for (const auto& definition : defs->getDefinitions()) {
            const auto [first, isNew] = definitions_.emplace(definition->getId(), definition.get());
            if (!isNew && !first->first.isEmpty()) tellRepeated(*first->second, *definition);
        }
    }
    hasDefinitionIndex_ = true;
}

void VexaRoot::tellRepeated(const VexaObject& first, const VexaObject& second) {
    Log::warning(34103, {quoteForMessage(second.getId()), static_cast<std::int64_t>(first.getPlace().line)},
                 second.getPlace());
}

String VexaRoot::findNearestReference(const String& reference) const {
    Vector<std::string> known;
    for (const auto& defs : defs_) {
        for (const auto& definition : defs->getDefinitions()) {
            if (known.size() == Limits::kNearestNames) break;
            if (!definition->getId().isEmpty()) known.push_back("#" + definition->getId().toUtf8());
        }
    }
    const std::string text = reference.toUtf8();
    const Vector<std::string_view> names(known.begin(), known.end());
    return String(nearestName(text.starts_with('#') ? text : "#" + text, names));
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
