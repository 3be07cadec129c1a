#pragma once

#include <memory>

#include "vexa/cartesian/BarGeometry.h"
#include "vexa/cartesian/VexaSerie.h"
#include "vexa/engine/VexaObject.h"

namespace VEXA {

class ChartPass;

/// How the series of a container are painted.
enum class ContainerKind : std::int32_t { Line = 0, Bar = 1, Area = 2, None = 3 };

/// Base of the containers of series: bar, line and area charts. It paints nothing itself but drives its series in two
/// passes, and clips their bodies to the plot and the room above and to the right of it that the 3-D view takes.
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

    /// The container that a series or a data point lies in. Throws NullPointerException when it lies in none.
    static VexaContainerObject& of(const VexaObject& object);

    const XmlObjectList<VexaSerie>& getSeries() const { return series_; }
    SerieGrouping getGrouping() const { return *grouping_; }
    ContainerKind getContainerKind() const noexcept { return kind_; }

    /// The bodies of all series. Both passes throw NullPointerException outside a plot area with two axes.
    void render(VexaRenderContext& context) override;
    /// What lies above the bodies of all series, captions and markers, in document order.
    virtual void renderOverlay(VexaRenderContext& context);

protected:
    explicit VexaContainerObject(ContainerKind kind) noexcept;

    /// Whether the last series is painted first.
    virtual bool isReversed(BarDirection direction) const;

    TXmlAttribute<SerieGrouping> grouping_{DefaultSerieGrouping};

private:
    void clip(VexaRenderContext& context);

    XmlObjectList<VexaSerie> series_;
    ContainerKind kind_;
    std::unique_ptr<ChartPass> pass_;  // from the end of one pass to the end of the other
};

}  // namespace VEXA
