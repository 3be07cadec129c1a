#pragma once

#include "vexa/style/GradientDefinition.h"
#include "vexa/style/VexaElementObject.h"
#include "vexa/style/VexaGradientStop.h"

namespace VEXA {

/// What linear and radial gradients have in common: stops, their loan from another gradient, the transform, and the
/// cache of brushes. It is no class of the document and has no record; its descendants register its attributes.
class GradientObject : public VexaElementObject, public GradientDefinition {
public:
    /// The first call makes the brushes of all three aspects, with its amount; later ones get the same brushes.
    /// A gradient with an `href` has the own stops of the gradient of its kind that it names (one step, no further),
    /// and keeps geometry, units, spread and transform to itself. Without stops: a warning, and brushes without stops.
    /// Where the `href` leads to none of its kind: a warning, an empty result, and from then on brushes without stops.
    SmartPtr<Brush> getBrush(ColorAspect aspect, float amount) override;

    /// Paints nothing.
    void render(VexaRenderContext& context) override;

protected:
    GradientObject() noexcept = default;
    ~GradientObject() override = default;

    /// A new brush with the gradient's geometry, units and spread.
    virtual SmartPtr<GradientBrush> makeBrush() const = 0;

    TXmlAttribute<Vector<Transform>> gradientTransform_{DefaultTransformList};
    TXmlAttribute<String> href_{DefaultStringAttribute};
    TXmlAttribute<GradientUnits> gradientUnits_{DefaultSGradientUnits};
    TXmlAttribute<GradientSpreadMethod> spreadMethod_{DefaultSGradientSpreadMethod};
    XmlObjectList<VexaGradientStop> stops_;

private:
    SmartPtr<GradientBrush>& brushOf(ColorAspect aspect) noexcept;
    /// Holds the stops to use; empty when `href` leads to no gradient of this kind.
    SmartPtr<GradientObject> findStopSource();
    /// The own stops for each aspect; borrowers share them.
    struct ShadedStops {
        float amount = 0;
        SmartPtr<StopList> normal;  // empty until the first use
        SmartPtr<StopList> darker;
        SmartPtr<StopList> lighter;
    };
    const ShadedStops& shadeStops(float amount);
    void addTransform();

    ShadedStops shadedStops_;
    SmartPtr<GradientBrush> normalBrush_;
    SmartPtr<GradientBrush> darkerBrush_;
    SmartPtr<GradientBrush> lighterBrush_;
};

}  // namespace VEXA
