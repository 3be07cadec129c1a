#pragma once

#include "vexa/cartesian/VexaCategoryAxis.h"
#include "vexa/cartesian/VexaContainerObject.h"
#include "vexa/cartesian/VexaValueAxis.h"
#include "vexa/engine/UnpaintedNotice.h"
#include "vexa/style/VexaAreaObject.h"

namespace VEXA {

/// The rectangle in which bar, line and area charts are drawn against a category axis and a value axis.
class VexaPlotArea : public VexaAreaObject {
public:
    class VexaPlotAreaTypeInfo final : public XmlTypeInfo<VexaPlotArea, VexaAreaObject> {
    public:
        VexaPlotAreaTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// Paints nothing and warns of it once: plot areas are read whole, painting them is no part of this version.
    void render(VexaRenderContext& context) override;
    /// Hands nothing out, as nothing is painted.
    void preRender(VexaRenderContext& context, SmartPtr<VexaTheme> theme) override;
    /// The number of series in all charts.
    int getSerieCount() override;

    const XmlObjectList<VexaContainerObject>& getCharts() const { return charts_; }

private:
    TXmlAttribute<bool> showCaptions_{DefaultTrueBoolAttribute};
    XmlObjectList<VexaContainerObject> charts_;
    XmlObjPtr<VexaCategoryAxis> categoryAxis_;
    XmlObjPtr<VexaValueAxis> valueAxis_;
    UnpaintedNotice notice_;
};

}  // namespace VEXA
