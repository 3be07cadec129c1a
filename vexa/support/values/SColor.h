#pragma once

#include <cstdint>

#include "vexa/support/drawing/Color.h"
#include "vexa/support/values/ValueTraits.h"

namespace VEXA {

enum class SColorType : std::int32_t { None = 0, Url = 1, Color = 2 };

/// A paint: nothing, a reference to a definition, or a plain colour.
class SColor {
public:
    constexpr SColor() noexcept = default;
    explicit constexpr SColor(SmartPtr<Color> color) noexcept : type_(SColorType::Color), color_(std::move(color)) {}
    /// `url` with its "#".
    static SColor reference(String url);
    /// For tests of what the engine does with a type that cannot be.
    static SColor ofType(SColorType type);

    SColorType getType() const noexcept { return type_; }
    /// The reference, "#id"; empty for other types.
    const String& getUrl() const noexcept { return url_; }
    const SmartPtr<Color>& getColor() const noexcept { return color_; }
    friend bool operator==(const SColor& a, const SColor& b) noexcept {
        return a.type_ == b.type_ && a.url_ == b.url_ && equalValues(a.color_, b.color_);
    }

private:
    SColorType type_ = SColorType::None;
    String url_;
    SmartPtr<Color> color_;
};

/// A paint, or not set; not set is not the same as `none`.
class SNullableColor {
public:
    constexpr SNullableColor() noexcept = default;
    explicit constexpr SNullableColor(SColor color) noexcept : color_(std::move(color)), isSet_(true) {}

    bool isNull() const noexcept { return !isSet_; }
    SColorType getType() const noexcept { return color_.getType(); }
    const String& getUrl() const noexcept { return color_.getUrl(); }
    const SmartPtr<Color>& getColor() const noexcept { return color_.getColor(); }
    const SColor& getSColor() const noexcept { return color_; }
    friend bool operator==(const SNullableColor&, const SNullableColor&) noexcept = default;

private:
    SColor color_;
    bool isSet_ = false;
};

VEXA_VALUE_TRAITS(SColor);
VEXA_VALUE_TRAITS(SNullableColor);

}  // namespace VEXA
