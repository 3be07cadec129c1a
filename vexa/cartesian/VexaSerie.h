#pragma once

#include "vexa/cartesian/VexaDataPoint.h"
#include "vexa/style/VexaElementObject.h"

namespace VEXA {

/// A list of data points with the style that they inherit.
class VexaSerie : public VexaElementObject {
public:
    class VexaSerieTypeInfo final : public XmlTypeInfo<VexaSerie, VexaElementObject> {
    public:
        VexaSerieTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// Paints nothing; see VexaPlotArea::render.
    void render(VexaRenderContext& context) override;

    const XmlObjectList<VexaDataPoint>& getDataPoints() const { return dataPoints_; }

private:
    XmlObjectList<VexaDataPoint> dataPoints_;
};

}  // namespace VEXA
