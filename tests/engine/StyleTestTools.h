#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/engine/EngineTestTools.h"
#include "vexa/style/VexaAreaObject.h"
#include "vexa/style/VexaDefs.h"
#include "vexa/style/VexaElementObject.h"
#include "vexa/style/VexaLinearGradient.h"
#include "vexa/style/VexaRadialGradient.h"
#include "vexa/surfaces/NullSurface.h"

/// Styled objects made without a parser, their attributes open to the tests.
namespace VEXA::Testing {

struct TestElement final : VexaElementObject {
    void render(VexaRenderContext&) override {}
    using VexaElementObject::captionColor_;
    using VexaElementObject::dashArray_;
    using VexaElementObject::dashOffset_;
    using VexaElementObject::fill_;
    using VexaElementObject::fillOpacity_;
    using VexaElementObject::fontFamily_;
    using VexaElementObject::fontSize_;
    using VexaElementObject::fontStyle_;
    using VexaElementObject::fontWeight_;
    using VexaElementObject::id_;
    using VexaElementObject::lineCap_;
    using VexaElementObject::lineJoin_;
    using VexaElementObject::miterLimit_;
    using VexaElementObject::opacity_;
    using VexaElementObject::stroke_;
    using VexaElementObject::strokeOpacity_;
    using VexaElementObject::strokeWidth_;
};

struct TestArea final : VexaAreaObject {
    void render(VexaRenderContext&) override {}
    void preRender(VexaRenderContext&, SmartPtr<VexaTheme>) override {}
    using VexaAreaObject::dashArray_;
    using VexaAreaObject::dashOffset_;
    using VexaAreaObject::fill_;
    using VexaAreaObject::fillOpacity_;
    using VexaAreaObject::fontFamily_;
    using VexaAreaObject::fontSize_;
    using VexaAreaObject::fontStyle_;
    using VexaAreaObject::fontWeight_;
    using VexaAreaObject::getFillBrush;
    using VexaAreaObject::getFont;
    using VexaAreaObject::getStrokeBrush;
    using VexaAreaObject::height_;
    using VexaAreaObject::id_;
    using VexaAreaObject::lineCap_;
    using VexaAreaObject::lineJoin_;
    using VexaAreaObject::miterLimit_;
    using VexaAreaObject::opacity_;
    using VexaAreaObject::stroke_;
    using VexaAreaObject::strokeOpacity_;
    using VexaAreaObject::strokeWidth_;
    using VexaAreaObject::updateRenderContext;
    using VexaAreaObject::width_;
    using VexaAreaObject::x_;
    using VexaAreaObject::y_;
};

struct TestStop final : VexaGradientStop {
    using VexaGradientStop::offset_;
    using VexaGradientStop::stopColor_;
    using VexaGradientStop::stopOpacity_;
};

struct TestLinear final : VexaLinearGradient {
    using VexaLinearGradient::gradientTransform_;
    using VexaLinearGradient::href_;
    using VexaLinearGradient::id_;
    using VexaLinearGradient::stops_;
};

struct TestRadial final : VexaRadialGradient {
    using VexaRadialGradient::fx_;
    using VexaRadialGradient::href_;
    using VexaRadialGradient::id_;
    using VexaRadialGradient::r_;
    using VexaRadialGradient::stops_;
};

struct TestDefs final : VexaDefs {
    using VexaDefs::definitions_;
    using VexaDefs::id_;
    /// Takes the object in, as the top of its tree.
    void add(VexaObject* object) {
        definitions_.add(object);
        object->setParent(this);
    }
};

inline SmartPtr<Color> rgb(std::uint32_t value) {
    return make<RGBColor>(static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 8),
                          static_cast<std::uint8_t>(value));
}
inline SNullableColor paint(std::uint32_t value) { return SNullableColor(SColor(rgb(value))); }
inline SNullableColor noPaint() { return SNullableColor(SColor()); }
inline SNullableColor reference(const char* url) { return SNullableColor(SColor::reference(url)); }

inline SmartPtr<TestStop> stop(float offset, std::uint32_t color, float opacity = 1) {
    auto made = make<TestStop>();
    made->offset_.setValue(FloatOrPercent(offset));
    made->stopColor_.setValue(rgb(color));
    made->stopOpacity_.setValue(FloatOrPercent(opacity));
    return made;
}

/// A brush in words: "#rrggbb/opacity", "none" without a colour, "linear 0:#…/1 …", "empty" without a brush.
inline std::string describe(const SmartPtr<Color>& color) {
    if (color.isEmpty()) return "none";
    char text[8];
    std::snprintf(text, sizeof(text), "#%06x", color->rgb());
    return text;
}
inline std::string number(float value) {
    char text[32];
    std::snprintf(text, sizeof(text), "%g", static_cast<double>(value));
    return text;
}
inline std::string describe(const SmartPtr<Brush>& brush) {
    if (brush.isEmpty()) return "empty";
    if (brush->getBrushType() == BrushType::SolidColor)
        return describe(static_cast<SolidColorBrush&>(*brush).getColor()) + "/" + number(brush->getOpacity());
    auto& gradient = static_cast<GradientBrush&>(*brush);
    std::string text = gradient.isRadial() ? "radial" : "linear";
    if (brush->getOpacity() != 1) text += "/" + number(brush->getOpacity());
    for (const StopPoint& point : gradient.getStops())
        text += " " + number(point.offset) + ":" + describe(point.color) + "/" + number(point.opacity);
    return text;
}
/// A stroke in words: its thickness and its brush.
inline std::string describe(const SmartPtr<Stroke>& stroke) {
    return stroke.isEmpty() ? "empty" : number(stroke->getThickness()) + " " + describe(stroke->getBrush());
}

}  // namespace VEXA::Testing
