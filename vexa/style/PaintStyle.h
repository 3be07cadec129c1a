#pragma once

#include <span>

#include "vexa/engine/VexaObject.h"
#include "vexa/style/ColorAspect.h"
#include "vexa/support/drawing/Font.h"
#include "vexa/support/drawing/Stroke.h"

namespace VEXA {

/// Where a class reports ordinals that cannot be: its source's name, and a line for each kind of value.
struct StyleLocations {
    const char* source;
    int fillType;
    int strokeType;
    int lineCap;
    int lineJoin;
    int fontStyle;
    int fontWeight;
};

/// An opacity of its own and the one of the whole object. The first of the two that differs from its default counts;
/// they are never multiplied.
struct OpacityAttributes {
    const TXmlAttribute<FloatOrPercent>& own;
    const TXmlAttribute<FloatOrPercent>& overall;
};

struct StrokeAttributes {
    const TXmlAttribute<SLength>& width;
    const TXmlAttribute<SLineCap>& lineCap;
    const TXmlAttribute<SLineJoin>& lineJoin;
    const TXmlAttribute<SLength>& miterLimit;
    const TXmlAttribute<Vector<SLength>>& dashArray;
    const TXmlAttribute<Length>& dashOffset;
    OpacityAttributes opacity;
};

struct FontAttributes {
    const TXmlAttribute<String>& family;
    const TXmlAttribute<LengthOrPercent>& size;
    const TXmlAttribute<FontStyle>& style;
    const TXmlAttribute<FontWeight>& weight;
};

/// Makes brushes, strokes and fonts of what a document says about one object. Areas, elements and webs share it; the
/// theme's part is theirs. An ordinal without a meaning is an UnreacheableCodeException at the class's code location.
class PaintStyle {
public:
    PaintStyle(VexaObject& owner, const StyleLocations& locations) noexcept : owner_(owner), locations_(locations) {}

    /// The fill of a paint that is set; empty for `none` and for a reference that leads nowhere.
    SmartPtr<Brush> makeFill(const SColor& paint, const OpacityAttributes& opacity, ColorAspect aspect,
                             float amount) const;
    /// The stroke of a paint that is set; empty for `none`. A reference that leads nowhere gives a stroke without
    /// brush.
    SmartPtr<Stroke> makeStroke(const SColor& paint, const StrokeAttributes& attributes, ColorAspect aspect,
                                float amount) const;
    /// A percentage size is one of the context's normalised diagonal. Sizes are cut to 0 … Limits::kFontSize.
    SmartPtr<Font> makeFont(const FontAttributes& attributes, const VexaRenderContext& context) const;
    /// The brush of the definition that the reference names. Without one: a warning with the owner's place, and empty.
    SmartPtr<Brush> makeGradient(const String& reference, ColorAspect aspect, float amount) const;

    /// A copy of the brush, its colours shaded. A shaded solid brush is opaque, whatever the opacity of its origin; a
    /// gradient keeps geometry, offsets and opacities. Empty for an empty brush.
    static SmartPtr<Brush> adjustBrush(const SmartPtr<Brush>& brush, ColorAspect aspect, float amount);
    static SmartPtr<Color> adjustColor(const SmartPtr<Color>& color, ColorAspect aspect, float amount);

private:
    /// False for `none`.
    bool isPainted(const SColor& paint, const char* what, int line) const;
    Vector<float> dashSizes(std::span<const SLength> lengths) const;
    SmartPtr<Brush> makeBrush(const SColor& paint, ColorAspect aspect, float amount) const;
    LineCap mapLineCap(SLineCap cap) const;
    LineJoin mapLineJoin(SLineJoin join) const;
    DrawingFontStyle mapFontStyle(FontStyle style) const;
    DrawingFontWeight mapFontWeight(FontWeight weight) const;
    [[noreturn]] void refuse(const char* what, std::int32_t ordinal, int line) const;

    VexaObject& owner_;
    const StyleLocations& locations_;
};

}  // namespace VEXA
