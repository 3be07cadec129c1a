#pragma once

#include "vexa/style/VexaElementObject.h"

namespace VEXA {

/// The grid lines of an axis.
class VexaGridLine : public VexaElementObject {
public:
    class VexaGridLineTypeInfo final : public XmlTypeInfo<VexaGridLine, VexaElementObject> {
    public:
        VexaGridLineTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// Paints nothing; see VexaPlotArea::render.
    void render(VexaRenderContext& context) override;

private:
    TXmlAttribute<GridlineType> type_{DefaultGridlineType};
};

}  // namespace VEXA
