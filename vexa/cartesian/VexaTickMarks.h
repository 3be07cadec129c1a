#pragma once

#include "vexa/style/VexaElementObject.h"

namespace VEXA {

/// The tick marks of an axis.
class VexaTickMarks : public VexaElementObject {
public:
    class VexaTickMarksTypeInfo final : public XmlTypeInfo<VexaTickMarks, VexaElementObject> {
    public:
        VexaTickMarksTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// Paints a mark at each axis value, in coordinates of the axis line. Throws NullPointerException outside an axis.
    void render(VexaRenderContext& context) override;
    /// How far the marks reach outward, px: nothing for style `none`, else their width and what lies outside.
    float getExtent();

private:
    TXmlAttribute<TickMarkStyle> tickMarkStyle_{DefaultTickMarkStyle};
    TXmlAttribute<TickMarkType> tickMarkType_{DefaultTickMarkType};
    TXmlAttribute<Length> tickMarkLength_{DefaultTickLength};
};

}  // namespace VEXA
