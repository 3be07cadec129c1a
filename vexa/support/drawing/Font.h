#pragma once

#include "vexa/support/core/SmartPtr.h"
#include "vexa/support/core/String.h"

namespace VEXA {

/// The ordinals are those of the document's keywords after mapping (0 upright, 1 italic; 2 normal, 4 bold).
enum class DrawingFontStyle : std::int32_t { Normal = 0, Italic = 1 };
enum class DrawingFontWeight : std::int32_t { Normal = 2, Bold = 4 };

/// A request for a font: family, size in px, style and weight. FontManager finds the font itself.
class Font final : public Object {
public:
    const String& getFontFamily() const noexcept { return family_; }
    void setFontFamily(String family) noexcept { family_ = std::move(family); }
    float getFontSize() const noexcept { return size_; }
    void setFontSize(float size) noexcept { size_ = size; }
    DrawingFontStyle getFontStyle() const noexcept { return style_; }
    void setFontStyle(DrawingFontStyle style) noexcept { style_ = style; }
    DrawingFontWeight getFontWeight() const noexcept { return weight_; }
    void setFontWeight(DrawingFontWeight weight) noexcept { weight_ = weight; }

private:
    String family_;
    float size_ = 12.0F;
    DrawingFontStyle style_ = DrawingFontStyle::Normal;
    DrawingFontWeight weight_ = DrawingFontWeight::Normal;
};

}  // namespace VEXA
