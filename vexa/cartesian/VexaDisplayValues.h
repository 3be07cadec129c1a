#pragma once

#include <optional>

#include "vexa/cartesian/AxisData.h"
#include "vexa/cartesian/LabelLayout.h"
#include "vexa/cartesian/LabelTexts.h"
#include "vexa/cartesian/VexaValue.h"
#include "vexa/style/VexaElementObject.h"

namespace VEXA {

class AxisScale;
class VexaAxisObject;

/// The labels of an axis, and the bounds that the document gives it. Labels are laid out once for a render, in the font
/// that they are drawn with; what needs them throws NullPointerException outside an axis, and UnreacheableCodeException
/// for an orientation without a meaning.
class VexaDisplayValues : public VexaElementObject {
public:
    class VexaDisplayValuesTypeInfo final : public XmlTypeInfo<VexaDisplayValues, VexaElementObject> {
    public:
        VexaDisplayValuesTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// Paints the labels, in coordinates of the axis line.
    void render(VexaRenderContext& context) override;

    /// Box of the labels relative to the start of the axis line; empty when none are drawn.
    RectF getLabelsRect(VexaRenderContext& context);
    /// The largest width and the largest height of a label's box; (0, 0) when none are drawn.
    SizeF getLabelsSize(VexaRenderContext& context);
    /// The gap between axis line and labels, px; 0 when none are drawn.
    float getOffset() const { return *drawValues_ ? offset_->pxSize() : 0; }
    /// The largest width and height among the texts that stand for values.
    SizeF getMaxValueTextSize(VexaRenderContext& context);
    /// Lays the labels out anew for the next who asks: on a plot of another size, or with texts in another font.
    void dropLabels() { labels_.reset(); }
    void dropTexts() {
        labels_.reset();
        texts_.clear();
    }

    bool hasMin() const { return !(min_ == DefaultMinValue); }
    bool hasMax() const { return !(max_ == DefaultMaxValue); }
    /// No value where the document gives none.
    AxisRange getRange() const { return {*min_, *max_}; }
    DisplayValPlacement getPlacement() const { return *placement_; }
    bool getDrawAtMin() const { return *drawAtMin_; }

private:
    const LabelLayout& getLabels(VexaRenderContext& context);
    LabelLayout layoutLabels(VexaRenderContext& context, const AxisScale& scale);
    Vector<LabelText> measureTexts(VexaRenderContext& context, const Vector<Value>& values);
    LabelTexts makeTexts(ValueKind kind);
    void checkFormat(ValueKind kind);
    float getTurn(const VexaAxisObject& axis) const;

    TXmlAttribute<bool> drawValues_{DefaultTrueBoolAttribute};
    TXmlAttribute<bool> replaceValues_{DefaultTrueBoolAttribute};
    TXmlAttribute<bool> adjustValues_{DefaultTrueBoolAttribute};
    TXmlAttribute<bool> drawAtMin_{DefaultTrueBoolAttribute};
    TXmlAttribute<Length> offset_{DefaultCaptionOffset};
    TXmlAttribute<Value> min_{DefaultMinValue};
    TXmlAttribute<Value> max_{DefaultMaxValue};
    TXmlAttribute<DisplayValPlacement> placement_{DefaultDisplayValPlacement};
    TXmlAttribute<DisplayValOrientation> orientation_{DefaultDisplayValOrientation};
    TXmlAttribute<String> format_{DefaultStringAttribute};
    XmlObjectList<VexaValue> values_;
    Vector<LabelText> texts_;  // of the axis values, all of them
    std::optional<LabelLayout> labels_;
    bool isFormatChecked_ = false;
};

}  // namespace VEXA
