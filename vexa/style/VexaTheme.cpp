#include "vexa/style/VexaTheme.h"

#include <cmath>

#include "vexa/support/drawing/Brush.h"

namespace VEXA {

namespace {

/// A colour of the program's lifetime, with a pointer to it: there before any constructor runs, never destroyed.
struct ThemeColor {
    Immortal<RGBColor::Shared> color;
    Immortal<SmartPtr<Color>> pointer;

    constexpr ThemeColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue) noexcept
        : color(red, green, blue), pointer(SmartPtr<Color>::immortal(&color.value)) {}
};

constinit ThemeColor basic1(97, 97, 97);
constinit ThemeColor basic3(69, 114, 167);
constinit ThemeColor basic4(192, 80, 77);
constinit ThemeColor basic5(155, 187, 89);
constinit ThemeColor basic6(128, 100, 162);
constinit ThemeColor basic7(75, 172, 198);
constinit ThemeColor basic8(247, 150, 70);
constinit ThemeColor plot1(231, 231, 231);
constinit ThemeColor plot3(233, 237, 244);
constinit ThemeColor plot4(244, 233, 233);
constinit ThemeColor plot5(239, 243, 234);
constinit ThemeColor plot6(237, 234, 240);
constinit ThemeColor plot7(233, 241, 245);
constinit ThemeColor plot8(253, 239, 233);
constinit ThemeColor stroke1(78, 78, 78);
constinit ThemeColor stroke3(52, 91, 137);
constinit ThemeColor stroke4(139, 53, 51);
constinit ThemeColor stroke5(111, 135, 60);
constinit ThemeColor stroke6(90, 68, 116);
constinit ThemeColor stroke7(49, 124, 144);
constinit ThemeColor stroke8(181, 106, 44);
constinit ThemeColor whiteStroke(255, 255, 255);
constinit ThemeColor axisStroke(134, 134, 134);

/// The colours of one family; null for what it has none of.
struct Family {
    const ThemeColor* basic;
    const ThemeColor* plot;
    const ThemeColor* stroke;
};

constexpr int kFamilies = 8;
constexpr int kVariants = 4;
constexpr int kColored = 1;        // the family with several colours, counted from 0
constexpr int kColoredColors = 6;  // they are those of the families after it

constexpr Family kFamilyColors[kFamilies] = {
    {&basic1, &plot1, &stroke1}, {nullptr, &plot1, nullptr},  {&basic3, &plot3, &stroke3}, {&basic4, &plot4, &stroke4},
    {&basic5, &plot5, &stroke5}, {&basic6, &plot6, &stroke6}, {&basic7, &plot7, &stroke7}, {&basic8, &plot8, &stroke8},
};

enum class Variant { None, Flat, WhiteOutline, Gradient, DarkOutline };

SmartPtr<Color> colorOf(const ThemeColor* color) { return color == nullptr ? nullptr : color->pointer.value; }

bool isTheme(ChartTheme theme) { return theme >= ChartTheme::GrayFlat && theme <= ChartTheme::OrangeDarkOutline; }

const Family* familyOf(ChartTheme theme) {
    return isTheme(theme) ? &kFamilyColors[(static_cast<int>(theme) - 1) / kVariants] : nullptr;
}

Variant variantOf(ChartTheme theme) {
    return isTheme(theme) ? static_cast<Variant>((static_cast<int>(theme) - 1) % kVariants + 1) : Variant::None;
}

/// How far position `position` of `count` lies from the middle: from just above -0.7 (light) to just below 0.7 (dark).
float tintAt(int position, int count) { return static_cast<float>((position / (count + 1.0) * 140 - 70) / 100); }

SmartPtr<Color> tinted(const SmartPtr<Color>& color, float tint) {
    const float amount = 1.0F - std::fabs(tint);
    return tint < 0 ? Color::getLighter(color, amount) : Color::getDarker(color, amount);
}

SmartPtr<Stroke> makeStroke(const SmartPtr<Color>& color, float width) {
    return make<Stroke>(make<SolidColorBrush>(color), width);
}

SmartPtr<Brush> makeDiagonalGradient(const SmartPtr<Color>& color) {
    auto gradient =
        make<LinearGradientBrush>(0.0F, 0.0F, 1.0F, 1.0F, GradientUnits::ObjectBoundingBox, GradientSpreadMethod::Pad);
    gradient->addStop(0.0F, Color::getLighter(color, 0.8F), 1.0F);
    gradient->addStop(0.45F, color, 1.0F);
    gradient->addStop(0.8F, Color::getDarker(color, 0.85F), 1.0F);
    return gradient;
}

bool isIndex(int index, std::size_t size) { return index >= 0 && static_cast<std::size_t>(index) < size; }

}  // namespace

constinit const SmartPtr<Color>& VexaTheme::theme1BasicColor = basic1.pointer.value;
constinit const SmartPtr<Color>& VexaTheme::theme3BasicColor = basic3.pointer.value;
constinit const SmartPtr<Color>& VexaTheme::theme4BasicColor = basic4.pointer.value;
constinit const SmartPtr<Color>& VexaTheme::theme5BasicColor = basic5.pointer.value;
constinit const SmartPtr<Color>& VexaTheme::theme6BasicColor = basic6.pointer.value;
constinit const SmartPtr<Color>& VexaTheme::theme7BasicColor = basic7.pointer.value;
constinit const SmartPtr<Color>& VexaTheme::theme8BasicColor = basic8.pointer.value;
constinit const SmartPtr<Color>& VexaTheme::theme1PlotColor = plot1.pointer.value;
constinit const SmartPtr<Color>& VexaTheme::theme3PlotColor = plot3.pointer.value;
constinit const SmartPtr<Color>& VexaTheme::theme4PlotColor = plot4.pointer.value;
constinit const SmartPtr<Color>& VexaTheme::theme5PlotColor = plot5.pointer.value;
constinit const SmartPtr<Color>& VexaTheme::theme6PlotColor = plot6.pointer.value;
constinit const SmartPtr<Color>& VexaTheme::theme7PlotColor = plot7.pointer.value;
constinit const SmartPtr<Color>& VexaTheme::theme8PlotColor = plot8.pointer.value;
constinit const SmartPtr<Color>& VexaTheme::theme1StrokeColor = stroke1.pointer.value;
constinit const SmartPtr<Color>& VexaTheme::theme3StrokeColor = stroke3.pointer.value;
constinit const SmartPtr<Color>& VexaTheme::theme4StrokeColor = stroke4.pointer.value;
constinit const SmartPtr<Color>& VexaTheme::theme5StrokeColor = stroke5.pointer.value;
constinit const SmartPtr<Color>& VexaTheme::theme6StrokeColor = stroke6.pointer.value;
constinit const SmartPtr<Color>& VexaTheme::theme7StrokeColor = stroke7.pointer.value;
constinit const SmartPtr<Color>& VexaTheme::theme8StrokeColor = stroke8.pointer.value;
constinit const SmartPtr<Color>& VexaTheme::themeWhiteStrokeColor = whiteStroke.pointer.value;
constinit const SmartPtr<Color>& VexaTheme::axisStrokeColor = axisStroke.pointer.value;

void VexaTheme::intialize(int count) {
    count_ = count;
    palette_.clear();
    if (isColoredStyle()) {
        makeColoredPalette();
    } else {
        makeSinglePalette();
    }
}

void VexaTheme::makeSinglePalette() {
    const SmartPtr<Color> base = getBaseColor();
    for (int position = 1; position <= count_; ++position) palette_.push_back(tinted(base, tintAt(position, count_)));
}

void VexaTheme::makeColoredPalette() {
    strokePalette_.clear();
    const int rest = count_ % kColoredColors;
    count_ = count_ / kColoredColors + (rest != 0 ? 1 : 0);
    for (int cycle = 1; cycle <= count_; ++cycle)
        addColoredCycle(cycle == 1 && rest != 0 ? rest : kColoredColors, tintAt(cycle, count_));
}

void VexaTheme::addColoredCycle(int colors, float tint) {
    for (int k = colors; k >= 1; --k) {
        palette_.push_back(tinted(getColoredStyleBaseColor(k), tint));
        strokePalette_.push_back(getColoredStyleStrokeColor(k));
    }
}

SmartPtr<Color> VexaTheme::paletteColor(int index) {
    return isIndex(index, palette_.size()) ? palette_[static_cast<std::size_t>(index)] : getBaseColor();
}

SmartPtr<Brush> VexaTheme::getSerieFill(int index) {
    const SmartPtr<Color> color = paletteColor(index);
    if (variantOf(theme_) == Variant::Gradient) return makeDiagonalGradient(color);
    return make<SolidColorBrush>(color);
}

SmartPtr<Stroke> VexaTheme::getSerieStroke(int index) {
    const Variant variant = variantOf(theme_);
    if (variant == Variant::WhiteOutline) return makeStroke(themeWhiteStrokeColor, 1);
    if (variant != Variant::DarkOutline) return nullptr;
    if (!isColoredStyle()) return makeStroke(colorOf(familyOf(theme_)->stroke), 1);
    if (!isIndex(index, strokePalette_.size())) return nullptr;
    return makeStroke(strokePalette_[static_cast<std::size_t>(index)], 1);
}

SmartPtr<Stroke> VexaTheme::getLineChartStroke(int index) {
    SmartPtr<Stroke> stroke = makeStroke(paletteColor(index), variantOf(theme_) == Variant::Flat ? 4.0F : 6.66F);
    stroke->setStartLineCap(LineCap::Round);
    stroke->setEndLineCap(LineCap::Round);
    return stroke;
}

SmartPtr<Brush> VexaTheme::getPlotFill() {
    if (variantOf(theme_) != Variant::DarkOutline) return nullptr;
    return make<SolidColorBrush>(colorOf(familyOf(theme_)->plot));
}

SmartPtr<Stroke> VexaTheme::getAxisStroke() { return makeStroke(axisStrokeColor, 1); }

bool VexaTheme::isColoredStyle() { return familyOf(theme_) == &kFamilyColors[kColored]; }

SmartPtr<Color> VexaTheme::getBaseColor() {
    const Family* const family = familyOf(theme_);
    return family == nullptr ? nullptr : colorOf(family->basic);
}

SmartPtr<Color> VexaTheme::getColoredStyleBaseColor(int k) {
    return k >= 1 && k <= kColoredColors ? colorOf(kFamilyColors[kColored + k].basic) : nullptr;
}

SmartPtr<Color> VexaTheme::getColoredStyleStrokeColor(int k) {
    return k >= 1 && k <= kColoredColors ? colorOf(kFamilyColors[kColored + k].stroke) : theme8StrokeColor;
}

}  // namespace VEXA
