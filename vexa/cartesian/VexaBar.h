#pragma once

#include "vexa/cartesian/VexaContainerObject.h"

namespace VEXA {

/// Series drawn as bars.
class VexaBar : public VexaContainerObject {
public:
    class VexaBarTypeInfo final : public XmlTypeInfo<VexaBar, VexaContainerObject> {
    public:
        VexaBarTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    VexaBar() noexcept : VexaContainerObject(ContainerKind::Bar) {}

    /// Between the bars of a cluster, in px.
    float getClusterSpacing() const { return clusterSpacing_->pxSize(); }
    /// Of bars in the 3-D view.
    BarShapeType getBarShape() const { return *barShape_; }

    /// A single series is grouped as `overlapped` from then on.
    void render(VexaRenderContext& context) override;

protected:
    /// Also where clustered bars lie: the first series, which lies on top, covers the depth of those below it.
    bool isReversed(BarDirection direction) const override;

private:
    TXmlAttribute<Length> clusterSpacing_{DefaultLength};
    TXmlAttribute<BarShapeType> barShape_{DefaultBarShapeType};
};

}  // namespace VEXA
