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

    /// Paints a line across the plot at each axis value, in coordinates of the plot (in the 3-D view of its back plane,
    /// with a line on the left wall or on the floor). Throws NullPointerException outside an axis.
    void render(VexaRenderContext& context) override;

private:
    TXmlAttribute<GridlineType> type_{DefaultGridlineType};
};

}  // namespace VEXA
