#pragma once

#include <unordered_map>

#include "vexa/engine/PaintWatch.h"
#include "vexa/legend/VexaLegend.h"
#include "vexa/legend/VexaTitle.h"
#include "vexa/style/VexaAreaObject.h"
#include "vexa/style/VexaDefs.h"
#include "vexa/support/drawing/RenderContext.h"

namespace VEXA {

/// The top element of a chart document: owns the chart bodies, title, legend and definitions, and drives a render.
///
/// A tree may be rendered more than once, but not on two threads at a time: layout and theme are written into it.
class VexaRoot : public VexaAreaObject {
public:
    class VexaRootTypeInfo final : public XmlTypeInfo<VexaRoot, VexaAreaObject> {
    public:
        VexaRootTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// In px; a percentage is one of `reference`.
    float getWidth(float reference) const { return width_->pxSize(reference); }
    float getHeight(float reference) const { return height_->pxSize(reference); }
    bool hasPercentWidth() const { return width_->isPercent(); }
    bool hasPercentHeight() const { return height_->isPercent(); }

    /// Paints the whole chart: background, bodies in document order, title, legend. `width` and `height` are what a
    /// size in percent refers to, in px. Warns when nothing can show: of a page without extent, and of a view box that
    /// leads beyond all coordinates; and of characters that no font has. The surface's state is as before when it ends,
    /// also by an exception. Throws Exception 34011 for a view box without extent.
    void render(SmartPtr<RenderContext> surface, float width, float height);
    /// The same under the eyes of a watch, for those who want to hear of all failures.
    void render(SmartPtr<RenderContext> surface, float width, float height, PaintWatch& watch);
    /// Does nothing: a root is painted by the call above only.
    void render(VexaRenderContext& context) override;
    /// Builds the theme and hands it to the first body and to the legend, once for a tree; not at all for theme `none`.
    /// `theme` plays no part.
    void preRender(VexaRenderContext& context, SmartPtr<VexaTheme> theme) override;
    void drawBackground(VexaRenderContext& context) override;
    /// The definition that the reference "#id" names, the first one in document order; empty when there is none. The
    /// first call with a # warns of definitions that have the id of an earlier one.
    XmlObjPtr<VexaObject> findObject(const String& id) override;

    /// Plot areas, pies and spiders in document order.
    const XmlObjectList<XmlObject>& getBodies() const { return bodies_; }
    /// Empty when the document has none.
    const XmlObjPtr<VexaTitle>& getTitle() const { return title_; }
    const XmlObjPtr<VexaLegend>& getLegend() const { return legend_; }
    const XmlObjectList<VexaDefs>& getDefs() const { return defs_; }
    /// Of no extent when the document gives none.
    const ViewBox& getViewBox() const { return *viewBox_; }

private:
    /// With or without the # that a reference needs.
    String findNearestReference(const String& reference) const;
    template <class Guard>
    void paint(const SmartPtr<RenderContext>& surface, float width, float height, const Guard& guard);
    template <class Guard>
    void paintParts(VexaRenderContext& context, const Guard& guard);
    static VexaAreaObject* asArea(const XmlObjPtr<XmlObject>& body);
    VexaAreaObject* firstBody() const;
    void tellEmptyPicture(const SizeF& page, const Matrix& transform) const;
    void indexDefinitions();
    static void tellRepeated(const VexaObject& first, const VexaObject& second);

    XmlObjectList<XmlObject> bodies_;
    XmlObjPtr<VexaLegend> legend_;
    XmlObjPtr<VexaTitle> title_;
    XmlObjectList<VexaDefs> defs_;
    TXmlAttribute<ViewBox> viewBox_{DefaultViewBox};
    bool needsPreRender_ = true;
    std::unordered_map<String, VexaObject*> definitions_;  // by id, the first of equal ones; made on first use
    bool hasDefinitionIndex_ = false;
};

}  // namespace VEXA
