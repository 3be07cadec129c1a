#pragma once

#include "vexa/cartesian/VexaSerie.h"
#include "vexa/engine/VexaObject.h"

namespace VEXA {

/// Base of the containers of series: bar, line and area charts.
class VexaContainerObject : public VexaObject {
public:
    class VexaContainerObjectTypeInfo final : public XmlTypeInfo<VexaContainerObject, VexaObject> {
    public:
        VexaContainerObjectTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    ~VexaContainerObject() override = 0;

    const XmlObjectList<VexaSerie>& getSeries() const { return series_; }

    /// Both passes of a container, the bodies and what lies above the bodies of all series, paint nothing; see
    /// VexaPlotArea::render.
    void render(VexaRenderContext& context) override;
    virtual void renderOverlay(VexaRenderContext& context);

private:
    TXmlAttribute<SerieGrouping> grouping_{DefaultSerieGrouping};
    XmlObjectList<VexaSerie> series_;
};

}  // namespace VEXA
