#pragma once

#include "vexa/style/VexaElementObject.h"
#include "vexa/support/drawing/Geometry.h"

namespace VEXA {

/// A spoke of a radar chart with a caption at its tip, and the bounds that it proposes for the scale of all spokes.
class VexaSpiderAxis : public VexaElementObject {
public:
    class VexaSpiderAxisTypeInfo final : public XmlTypeInfo<VexaSpiderAxis, VexaElementObject> {
    public:
        VexaSpiderAxisTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// Paints the spoke and the caption around the centre at (0, 0). Throws NullPointerException outside a spider.
    void render(VexaRenderContext& context) override;

    /// -2147483648 and 2147483648 where the document leaves the scale open.
    float getMin() const { return *min_; }
    float getMax() const { return *max_; }
    const String& getCaption() const { return *caption_; }
    /// The position among the spider's axes, from 1.
    void setIndex(int index) noexcept { index_ = index; }
    /// The point `radius` px out on spoke `index` of `axisCount`; see spiderAxisPoint.
    PointF getPoint(float axisCount, float radius, float index) const;

private:
    void drawCaption(VexaRenderContext& context, PointF tip);

    TXmlAttribute<float> min_{DefaultMinFloat};
    TXmlAttribute<float> max_{DefaultMaxFloat};
    TXmlAttribute<String> caption_{DefaultStringAttribute};
    int index_ = 1;
};

}  // namespace VEXA
