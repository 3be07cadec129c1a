#pragma once

#include <functional>
#include <limits>
#include <string>

#include "vexa/support/core/Stream.h"
#include "vexa/surfaces/DisplayListSurface.h"
#include "vexa/surfaces/SvgSurface.h"

namespace VEXA {

inline constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
inline constexpr float kInfinity = std::numeric_limits<float>::infinity();

using Drawing = std::function<void(RenderContext&)>;

/// What a drawing becomes on a surface.
struct DrawingCase {
    const char* why;
    Drawing draw;
    const char* expected;
};

inline SmartPtr<Color> colorOf(std::uint32_t rgb) {
    return make<RGBColor>(static_cast<std::uint8_t>(rgb >> 16U), static_cast<std::uint8_t>(rgb >> 8U),
                          static_cast<std::uint8_t>(rgb));
}

inline SmartPtr<Brush> solid(std::uint32_t rgb, float opacity = 1) {
    return make<SolidColorBrush>(colorOf(rgb), opacity);
}

inline SmartPtr<Stroke> pen(std::uint32_t rgb, float width = 1) { return make<Stroke>(solid(rgb), width); }

/// Red to blue, left to right over the box.
inline SmartPtr<GradientBrush> redToBlue(GradientUnits units = GradientUnits::ObjectBoundingBox,
                                         GradientSpreadMethod spread = GradientSpreadMethod::Pad) {
    const SmartPtr<GradientBrush> gradient = make<LinearGradientBrush>(0.0F, 0.0F, 1.0F, 0.0F, units, spread);
    gradient->addStop(0, colorOf(0xFF0000), 1);
    gradient->addStop(1, colorOf(0x0000FF), 1);
    return gradient;
}

inline SmartPtr<Font> fontOf(const String& family, float size) {
    const SmartPtr<Font> font = make<Font>();
    font->setFontFamily(family);
    font->setFontSize(size);
    return font;
}

template <class Surface>
std::string documentOf(const Drawing& draw, const DocumentInfo& info = {}) {
    const SmartPtr<IO::MemoryStream> stream = make<IO::MemoryStream>();
    const SmartPtr<Surface> surface = make<Surface>(stream);
    surface->setDocumentInfo(info);
    surface->beginDocument();
    surface->beginPage({200, 100});
    draw(*surface);
    surface->endPage();
    surface->endDocument();
    return stream->bytes();
}

/// The drawing with this fill and this stroke.
inline Drawing painted(SmartPtr<Brush> fill, SmartPtr<Stroke> stroke, const Drawing& draw) {
    return [=](RenderContext& c) {
        c.setFill(fill);
        c.setStroke(stroke);
        draw(c);
    };
}

/// What lies between two texts that must both be there; else a note of what is missing.
inline std::string between(const std::string& text, const std::string& start, const std::string& end) {
    const std::size_t from = text.find(start);
    if (from == text.npos) return "no " + start;
    const std::size_t to = text.find(end, from + start.size());
    if (to == text.npos) return "no " + end;
    return text.substr(from + start.size(), to - from - start.size());
}

/// The elements of an SVG document behind its root's start tag, a line each.
inline std::string svgBody(const Drawing& draw) {
    return between(documentOf<SvgSurface>(draw), "stroke-miterlimit=\"2\">\n", "</svg>");
}

/// The lines of a display list between those of the page.
inline std::string displayList(const Drawing& draw) {
    return between(documentOf<DisplayListSurface>(draw), "\"height\":100}\n", "{\"op\":\"endPage\"}");
}

/// Every operation with `number` in each place that takes one, and `text` in each place that takes a text.
inline void drawEverything(RenderContext& c, float number, const String& text) {
    const SmartPtr<RenderContext> surface(&c);
    for (int place = 0; place < 12; ++place) {
        const auto at = [&](int i, float usual) { return i == place ? number : usual; };
        const RenderContextScope scope(surface);
        if (place == 1) c.setClip(PathCommand::ellipse(number, 0, 1, number));
        if (place == 2) c.setClip(PathCommand::rectangle(number, 0, 1, number, 0, 0));
        if (place == 3) c.addTranslateTransform(number, 1);
        if (place == 4) c.addRotateTransform(number);
        if (place == 5) c.addScaleTransform(1, number);
        if (place >= 3 && place <= 5) c.setClip(PathCommand::rectangle(0, 0, 1, 1, 0, 0));
        const SmartPtr<GradientBrush> gradient = redToBlue(GradientUnits(place % 2));
        gradient->addStop(at(6, 1), colorOf(0), at(7, 1));
        gradient->setOpacity(at(8, 1));
        gradient->addMatrixTransform(at(9, 1), 0, 0, 1, 0, 0);
        const SmartPtr<GradientBrush> radial =
            make<RadialGradientBrush>(at(6, 5), at(7, 5), at(8, 5), at(9, 6), GradientUnits(), GradientSpreadMethod());
        radial->setStops(gradient->getStops());
        const SmartPtr<Stroke> stroke = make<Stroke>(radial, at(10, 2));
        stroke->setDashArray({at(6, 1), 2});
        stroke->setDashOffset(at(7, 1));
        stroke->setMiterLimit(at(8, 3));
        c.setFill(gradient);
        c.setStroke(stroke);
        c.setFont(fontOf(text, at(11, 12)));
        c.drawLine(at(6, 0), at(7, 0), at(8, 1), at(9, 1));
        c.drawRectangle(at(6, 0), at(7, 0), at(8, 1), at(9, 1), at(10, 0), at(11, 1));
        c.drawEllipse(at(6, 0), at(7, 0), at(8, 1), at(9, 1));
        c.drawPolygon({{at(6, 0), at(7, 0)}, {at(8, 1), at(9, 1)}, {5, 5}}, place % 2 == 0);
        c.drawText(text, 1000, at(6, 0), at(7, 0), at(8, 0), 0);
    }
}

/// Numbers that take a writer to its limits.
inline constexpr float kHostileNumbers[] = {0.0F,          -0.0F,          1.0F / 3, -1.0F,     1e9F,       1e20F,
                                            3.4028235e38F, -3.4028235e38F, 1e-45F,   kInfinity, -kInfinity, kNaN};

}  // namespace VEXA
