#include "vexa/surfaces/SvgDefinitions.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "vexa/support/core/Format.h"
#include "vexa/surfaces/Keywords.h"
#include "vexa/surfaces/Paint.h"

namespace VEXA {

namespace {

enum Kind : std::uint32_t { kLinear, kRadial, kClip };

constexpr NumberWriter kShortest = Format::appendShortest;  // in a box of 0 to 1 a hundredth is far too coarse

bool isRectangle(const Path& path) noexcept {
    static constexpr PathVerb kVerbs[] = {PathVerb::MoveTo, PathVerb::LineTo, PathVerb::LineTo, PathVerb::LineTo,
                                          PathVerb::Close};
    const auto& verbs = path.verbs();
    if (!std::equal(verbs.begin(), verbs.end(), std::begin(kVerbs), std::end(kVerbs))) return false;
    const PointF* p = path.points().data();
    return p[0].y == p[1].y && p[1].x == p[2].x && p[2].y == p[3].y && p[3].x == p[0].x;
}

}  // namespace

std::uint64_t SvgDefinitions::gradient(const GradientBrush& gradient) {
    addGeometry(gradient);
    ids_.add(static_cast<std::uint32_t>(gradient.getUnits()));
    ids_.add(static_cast<std::uint32_t>(gradient.getSpreadMethod()));
    ids_.add(gradient.getMatrix());
    for (const StopPoint& stop : gradient.getStops()) {
        if (!stop.color) continue;
        ids_.add(stop.color->rgb());
        ids_.add(PointF{stop.offset, stop.opacity});
    }
    const auto [id, isNew] = ids_.intern();
    if (isNew) defineGradient(gradient, id);
    return id;
}

std::uint64_t SvgDefinitions::clip(const Path& path, const Matrix& transform) {
    ids_.add(kClip);
    ids_.add(transform);
    for (const PathVerb verb : path.verbs()) ids_.add(static_cast<std::uint32_t>(verb));
    for (const PointF& point : path.points()) ids_.add(point);
    const auto [id, isNew] = ids_.intern();
    if (isNew) defineClip(path, transform, id);
    return id;
}

void SvgDefinitions::clear() noexcept {
    output_.clear();
    ids_.clear();
}

void SvgDefinitions::addGeometry(const GradientBrush& gradient) {
    if (gradient.isRadial()) {
        const auto& radial = static_cast<const RadialGradientBrush&>(gradient);
        ids_.add(kRadial);
        ids_.add(radial.centre());
        ids_.add(PointF{radial.radii().width, radial.radii().height});
    } else {
        const auto& linear = static_cast<const LinearGradientBrush&>(gradient);
        ids_.add(kLinear);
        ids_.add(linear.start());
        ids_.add(linear.end());
    }
}

void SvgDefinitions::defineGradient(const GradientBrush& gradient, std::uint64_t id) {
    if (gradient.isRadial()) {
        const auto& radial = static_cast<const RadialGradientBrush&>(gradient);
        output_.id("<radialGradient id=\"", id);
        output_.number(" cx=\"", radial.centre().x, kShortest);
        output_.number(" cy=\"", radial.centre().y, kShortest);
        output_.number(" r=\"", radial.radii().width, kShortest);
    } else {
        const auto& linear = static_cast<const LinearGradientBrush&>(gradient);
        output_.id("<linearGradient id=\"", id);
        output_.number(" x1=\"", linear.start().x, kShortest);
        output_.number(" y1=\"", linear.start().y, kShortest);
        output_.number(" x2=\"", linear.end().x, kShortest);
        output_.number(" y2=\"", linear.end().y, kShortest);
    }
    const std::string_view units = keywordOf(gradient.getUnits());
    if (units != "objectBoundingBox") output_.word(" gradientUnits=\"", units);
    const std::string_view spread = keywordOf(gradient.getSpreadMethod());
    if (spread != "pad") output_.word(" spreadMethod=\"", spread);
    const Matrix matrix = gradientMatrix(gradient);
    if (!matrix.isIdentity()) output_.transform(" gradientTransform=\"", matrix, kShortest);
    output_.raw(">");
    defineStops(gradient);
    output_.raw(gradient.isRadial() ? "</radialGradient>\n" : "</linearGradient>\n");
}

void SvgDefinitions::defineStops(const GradientBrush& gradient) {
    // Viewers that draw with cairo blend the last colour into the first where a repeated gradient lacks a stop there.
    const bool needsEnds = gradient.getSpreadMethod() == GradientSpreadMethod::Repeat;
    const StopPoint* last = nullptr;
    float reached = 0;
    for (const StopPoint& stop : gradient.getStops()) {
        if (!stop.color) continue;
        const float offset = std::clamp(stop.offset, 0.0F, 1.0F);
        if (needsEnds && last == nullptr && offset > 0) defineStop(0, stop);
        defineStop(offset, stop);
        reached = std::max(reached, offset);
        last = &stop;
    }
    if (needsEnds && reached < 1 && last != nullptr) defineStop(1, *last);
}

void SvgDefinitions::defineStop(float offset, const StopPoint& stop) {
    output_.number("<stop offset=\"", offset, kShortest);
    output_.color(" stop-color=\"", stop.color.get()->rgb());
    const float opacity = cutOpacity(stop.opacity);
    if (opacity < 1) output_.number(" stop-opacity=\"", opacity, kShortest);
    output_.raw("/>");
}

void SvgDefinitions::defineClip(const Path& path, const Matrix& transform, std::uint64_t id) {
    output_.id("<clipPath id=\"", id, "\">");
    const bool letsThrough = !path.isEmpty() && isFinite(path) && transform.isFinite();
    if (letsThrough && transform.isScaleAndTranslate() && isRectangle(path)) {
        clipRectangle(path, transform);
    } else if (letsThrough) {
        output_.path("<path d=\"", path, SvgOutput::numbersUnder(transform));
        if (!transform.isIdentity()) output_.transform(" transform=\"", transform, Format::appendHundredths);
        output_.raw(" clip-rule=\"evenodd\"/>");
    }
    output_.raw("</clipPath>\n");
}

void SvgDefinitions::clipRectangle(const Path& path, const Matrix& transform) {
    const auto& [a, b, c, d, e, f] = transform.getElements();
    const PointF corner = path.points()[0];
    const PointF opposite = path.points()[2];
    const auto [left, right] = std::minmax({corner.x * a + e, opposite.x * a + e});
    const auto [top, bottom] = std::minmax({corner.y * d + f, opposite.y * d + f});
    output_.number("<rect x=\"", left, Format::appendHundredths);
    output_.number(" y=\"", top, Format::appendHundredths);
    output_.number(" width=\"", right - left, Format::appendHundredths);
    output_.number(" height=\"", bottom - top, Format::appendHundredths);
    output_.raw("/>");
}

}  // namespace VEXA
