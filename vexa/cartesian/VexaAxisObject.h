#pragma once

#include "vexa/cartesian/VexaDisplayValues.h"
#include "vexa/cartesian/VexaGridLine.h"
#include "vexa/cartesian/VexaTickMarks.h"
#include "vexa/style/VexaElementObject.h"

namespace VEXA {

/// Base of the two axes of a plot area, which differ in the data that they show.
class VexaAxisObject : public VexaElementObject {
public:
    class VexaAxisObjectTypeInfo final : public XmlTypeInfo<VexaAxisObject, VexaElementObject> {
    public:
        VexaAxisObjectTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    ~VexaAxisObject() override = 0;

    /// Paints nothing; see VexaPlotArea::render.
    void render(VexaRenderContext& context) override;

private:
    TXmlAttribute<AxisOrientation> orientation_{DefaultAxisOrientation};
    TXmlAttribute<AxisIntersection> intersection_{DefaultAxisIntersection};
    TXmlAttribute<String> caption_{DefaultStringAttribute};
    TXmlAttribute<AxisUnits> unit_{DefaultAxisUnits};
    TXmlAttribute<AxisDataType> dataType_{DefaultAxisDataType};
    TXmlAttribute<Value> min_{DefaultMinValue};
    TXmlAttribute<Value> max_{DefaultMaxValue};
    XmlObjPtr<VexaTickMarks> tickMarks_;
    XmlObjPtr<VexaDisplayValues> displayValues_;
    XmlObjPtr<VexaGridLine> gridLines_;
};

}  // namespace VEXA
