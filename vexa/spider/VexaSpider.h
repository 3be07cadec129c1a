#pragma once

#include "vexa/spider/SpiderLayout.h"
#include "vexa/spider/VexaSpiderAxis.h"
#include "vexa/spider/VexaSpiderSerie.h"
#include "vexa/style/VexaAreaObject.h"

namespace VEXA {

/// A radar chart: a web of rings, a polygon for each series, and a spoke with a caption for each axis. All spokes share
/// one scale.
class VexaSpider : public VexaAreaObject {
public:
    class VexaSpiderTypeInfo final : public XmlTypeInfo<VexaSpider, VexaAreaObject> {
    public:
        VexaSpiderTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// The spider that a series or an axis belongs to. Throws NullPointerException when it belongs to none.
    static VexaSpider& of(const VexaObject& child);

    /// Paints the background, and with at least one series and one axis the web, the series and the axes. Rings (the
    /// innermost first) and series that the picture has no corners left for are left out, with one warning. Throws
    /// UnreacheableCodeException for a web stroke of `none`, and what the series throw.
    void render(VexaRenderContext& context) override;
    /// Does nothing: a radar chart takes no colours from the theme.
    void preRender(VexaRenderContext& context, SmartPtr<VexaTheme> theme) override;
    int getSerieCount() override;

    const XmlObjectList<VexaSpiderSerie>& getSeries() const { return series_; }
    const XmlObjectList<VexaSpiderAxis>& getAxes() const { return axes_; }
    float getAxisCount() const { return static_cast<float>(axes_.size()); }
    /// Half of the shorter side of the area, in px.
    float getRadius(VexaRenderContext& context);
    /// The scale of all spokes. Looks at every data point, like the next two; a render asks for the layout instead.
    SpiderScale getValueRange() const;
    /// Where on a spoke a value lies, see SpiderScale::position.
    float getPosition(float value) const;
    /// The values at which rings are drawn. Too many are thinned out, with a warning.
    Vector<float> getWebValues(VexaRenderContext& context);
    /// The geometry of the whole chart around its centre, from one pass over the data.
    SpiderLayout getLayout(VexaRenderContext& context);

private:
    SpiderScale getDataScale() const;
    Vector<float> getWebValues(const SpiderLayout& layout);
    SmartPtr<Stroke> makeWebStroke();
    void drawChart(VexaRenderContext& context);
    /// These draw what the picture has corners left for, and answer how many rings or series that leaves out.
    std::size_t drawWeb(VexaRenderContext& context, const SpiderLayout& layout);
    std::size_t drawSeries(VexaRenderContext& context, const SpiderLayout& layout);

    TXmlAttribute<float> unitFrequency_{DefaultFloatAttribute};
    TXmlAttribute<bool> drawWeb_{DefaultTrueBoolAttribute};
    TXmlAttribute<SColor> webStroke_{DefaultSFillColor};
    TXmlAttribute<FloatOrPercent> webStrokeOpacity_{DefaultFloatOrPercent};
    TXmlAttribute<SLength> webStrokeWidth_{DefaultStrokeWidth};
    TXmlAttribute<SLineCap> webLineCap_{DefaultSLineCap};
    TXmlAttribute<SLineJoin> webLineJoin_{DefaultSLineJoin};
    TXmlAttribute<SLength> webMiterLimit_{DefaultMiterLimit};
    TXmlAttribute<Vector<SLength>> webDashArray_{DefaultSDashPattern};
    TXmlAttribute<Length> webDashOffset_{DefaultLength};
    XmlObjectList<VexaSpiderSerie> series_;
    XmlObjectList<VexaSpiderAxis> axes_;
};

}  // namespace VEXA
