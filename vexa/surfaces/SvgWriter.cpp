#include "vexa/surfaces/SvgWriter.h"

#include <algorithm>
#include <cmath>

#include "vexa/support/core/Format.h"
#include "vexa/support/core/Limits.h"
#include "vexa/support/drawing/TextDirection.h"
#include "vexa/surfaces/Keywords.h"
#include "vexa/surfaces/SvgFontFamily.h"
#include "vexa/surfaces/SvgRoot.h"
#include "vexa/surfaces/XmlText.h"

namespace VEXA {

namespace {

template <class... Numbers>
bool areFinite(Numbers... numbers) noexcept {
    return (std::isfinite(numbers) && ...);
}

/// A point has no direction in which a square could lie; SVG would draw one all the same.
bool showsPoints(const Stroke& stroke) noexcept { return stroke.getStartLineCap() == LineCap::Round; }

}  // namespace

void SvgWriter::line(const DrawingState& state, PointF from, PointF to) {
    const NumberWriter numbers = SvgOutput::numbersUnder(state.transform);
    const float tolerance = SvgOutput::toleranceOf(numbers);
    const bool flat = std::abs(to.x - from.x) <= tolerance || std::abs(to.y - from.y) <= tolerance;
    const Paint paint = styleOf(state, flat).stroke;
    if (!paint.paints() || !areFinite(from.x, from.y, to.x, to.y)) return;
    if (from == to && !showsPoints(*state.stroke)) return;
    open(state, "<line");
    output_.number(" x1=\"", from.x, numbers);
    output_.number(" y1=\"", from.y, numbers);
    output_.number(" x2=\"", to.x, numbers);
    output_.number(" y2=\"", to.y, numbers);
    placed(state.transform);
    stroke(*state.stroke, paint, numbers, false);
    output_.raw("/>\n");
}

void SvgWriter::rectangle(const DrawingState& state, RectF rectangle, SizeF radii) {
    const NumberWriter numbers = SvgOutput::numbersUnder(state.transform);
    const auto [x, y, width, height] = upright(rectangle);
    if (!areFinite(x, y, width, height)) return;
    if (!(width > 0 && height > 0)) {
        lineShape(state, *PathCommand::rectangle(x, y, width, height, 0, 0), numbers);
        return;
    }
    const Style style = styleOf(state, false);
    if (!style.paints()) return;
    open(state, "<rect");
    output_.number(" x=\"", x, numbers);
    output_.number(" y=\"", y, numbers);
    output_.number(" width=\"", width, SvgOutput::numbersForSize(width, numbers));
    output_.number(" height=\"", height, SvgOutput::numbersForSize(height, numbers));
    if (radii.width > 0 && radii.height > 0) {
        output_.number(" rx=\"", radii.width, numbers);
        output_.number(" ry=\"", radii.height, numbers);
    }
    close(state, style, numbers);
}

void SvgWriter::ellipse(const DrawingState& state, PointF centre, SizeF radii) {
    const NumberWriter numbers = SvgOutput::numbersUnder(state.transform);
    const auto [rx, ry] = SizeF{std::abs(radii.width), std::abs(radii.height)};
    if (!areFinite(centre.x, centre.y, rx, ry)) return;
    if (!(rx > 0 && ry > 0)) {
        lineShape(state, *PathCommand::ellipse(centre.x, centre.y, rx, ry), numbers);
        return;
    }
    const Style style = styleOf(state, false);
    if (!style.paints()) return;
    open(state, rx == ry ? "<circle" : "<ellipse");
    output_.number(" cx=\"", centre.x, numbers);
    output_.number(" cy=\"", centre.y, numbers);
    output_.number(rx == ry ? " r=\"" : " rx=\"", rx, SvgOutput::numbersForSize(rx, numbers));
    if (rx != ry) output_.number(" ry=\"", ry, SvgOutput::numbersForSize(ry, numbers));
    close(state, style, numbers);
}

void SvgWriter::path(const DrawingState& state, const Path& path) {
    const NumberWriter numbers = SvgOutput::numbersUnder(state.transform);
    Style style = styleOf(state, false);
    if (style.dependsOnBox() && isFlat(path, SvgOutput::toleranceOf(numbers))) style = styleOf(state, true);
    if (style.paints() && !path.isEmpty() && isFinite(path)) outline(state, path, style, numbers);
}

void SvgWriter::text(const DrawingState& state, std::u32string_view text, PointF at, float spacing) {
    const Paint paint = styleOf(state, false).fill;
    if (text.empty() || !state.font || !(state.font->getFontSize() > 0) || !paint.paints()) return;
    if (!areFinite(at.x, at.y)) return;
    const float scale = paint.gradient == nullptr ? textScale(state.transform) : 1.0F;
    const auto& [a, b, c, d, e, f] = state.transform.getElements();
    const Matrix matrix(a / scale, b / scale, c / scale, d / scale, e, f);
    const NumberWriter numbers = SvgOutput::numbersUnder(matrix);
    open(state, "<text");
    output_.number(" x=\"", at.x * scale, numbers);
    output_.number(" y=\"", at.y * scale, numbers);
    placed(matrix);
    fill(paint);
    font(*state.font, scale, numbers);
    if (isRightToLeft(text)) output_.raw(" direction=\"rtl\" text-anchor=\"end\"");  // its end stands at x
    if (spacing != 0 && std::isfinite(spacing)) {
        output_.number(" letter-spacing=\"", spacing * scale, SvgOutput::numbersForSize(spacing * scale, numbers));
    }
    output_.raw(losesSpaces(text) ? " xml:space=\"preserve\">" : ">");
    appendXmlText(text, output_.text());
    output_.raw("</text>\n");
}

void SvgWriter::finish() { leaveClips(0); }

void SvgWriter::clear() {
    output_.clear();
    definitions_.clear();
    clips_.clear();
}

float SvgWriter::textScale(const Matrix& transform) noexcept {
    const auto& [a, b, c, d, e, f] = transform.getElements();
    const float scale = std::hypot(a, b);
    const bool enlargesEvenly = a == d && b == -c && SvgOutput::numbersUnder(transform) != SvgOutput::numbersUnder({});
    return enlargesEvenly && std::isfinite(scale) ? scale : 1.0F;
}

RectF SvgWriter::upright(RectF rectangle) noexcept {
    if (rectangle.width < 0) {
        rectangle.x += rectangle.width;
        rectangle.width = -rectangle.width;
    }
    if (rectangle.height < 0) {
        rectangle.y += rectangle.height;
        rectangle.height = -rectangle.height;
    }
    return rectangle;
}

SvgWriter::Style SvgWriter::styleOf(const DrawingState& state, bool flatBox) noexcept {
    if (!state.transform.isFinite()) return {};
    const Style style{resolvePaint(state.fill.get()), resolvePaint(state.stroke.get())};
    return flatBox ? Style{onFlatBox(style.fill), onFlatBox(style.stroke)} : style;
}

void SvgWriter::lineShape(const DrawingState& state, const Path& path, NumberWriter numbers) {
    const Style style{{}, styleOf(state, true).stroke};
    if (style.paints()) outline(state, path, style, numbers);
}

void SvgWriter::outline(const DrawingState& state, const Path& path, const Style& style, NumberWriter numbers) {
    if (isPoint(path) && !(style.stroke.paints() && showsPoints(*state.stroke))) return;
    open(state, "<path");
    output_.path(" d=\"", path, numbers);
    close(state, style, numbers);
}

void SvgWriter::open(const DrawingState& state, std::string_view start) {
    if (state.clip.get() != (clips_.empty() ? nullptr : clips_.back().get())) enterClip(state.clip.get());
    output_.raw(start);
}

void SvgWriter::close(const DrawingState& state, const Style& style, NumberWriter numbers) {
    placed(state.transform);
    fill(style.fill);
    if (style.stroke.paints()) stroke(*state.stroke, style.stroke, numbers, true);
    output_.raw("/>\n");
}

void SvgWriter::enterClip(ClipNode* innermost) {
    Vector<ClipNode*> entered;
    ClipNode* node = innermost;
    while (node != nullptr && !(node->depth <= clips_.size() && clips_[node->depth - 1].get() == node)) {
        entered.push_back(node);
        node = node->outer.get();
    }
    leaveClips(node == nullptr ? 0 : node->depth);
    for (auto next = entered.rbegin(); next != entered.rend(); ++next) {
        output_.id("<g clip-path=\"url(#", definitions_.clip(*(*next)->path, (*next)->transform), ")\">\n");
        clips_.emplace_back(*next);
    }
}

void SvgWriter::leaveClips(std::size_t depth) {
    for (; clips_.size() > depth; clips_.pop_back()) output_.raw("</g>\n");
}

void SvgWriter::placed(const Matrix& transform) {
    if (!transform.isIdentity()) output_.transform(" transform=\"", transform, Format::appendHundredths);
}

void SvgWriter::fill(const Paint& paint) {
    if (!paint.paints()) {
        output_.raw(" fill=\"none\"");
    } else if (paint.gradient != nullptr) {
        output_.id(" fill=\"url(#", definitions_.gradient(*paint.gradient), ")\"");
    } else {
        output_.color(" fill=\"", paint.rgb);
    }
    if (paint.paints() && paint.opacity < 1) output_.number(" fill-opacity=\"", paint.opacity, Format::appendShortest);
}

void SvgWriter::stroke(const Stroke& stroke, const Paint& paint, NumberWriter numbers, bool hasJoins) {
    if (paint.gradient != nullptr) {
        output_.id(" stroke=\"url(#", definitions_.gradient(*paint.gradient), ")\"");
    } else {
        output_.color(" stroke=\"", paint.rgb);
    }
    if (paint.opacity < 1) output_.number(" stroke-opacity=\"", paint.opacity, Format::appendShortest);
    const float width = stroke.getThickness();
    if (width != 1) output_.number(" stroke-width=\"", width, SvgOutput::numbersForSize(width, numbers));
    const LineCap cap = stroke.getStartLineCap();
    if (cap != LineCap::Butt) output_.word(" stroke-linecap=\"", keywordOf(cap));
    if (hasJoins) joins(stroke);
    if (stroke.isDashed()) dashes(stroke, numbers);
}

void SvgWriter::joins(const Stroke& stroke) {
    const LineJoin join = stroke.getLineJoin();
    const float limit = stroke.getMiterLimit();
    if (join != LineJoin::Miter) {
        output_.word(" stroke-linejoin=\"", keywordOf(join));
    } else if (limit != kSvgMiterLimit) {  // a limit below 1 cuts every corner, as 1 does, but is an error
        output_.number(" stroke-miterlimit=\"", limit > 1 ? limit : 1, Format::appendHundredths);
    }
}

void SvgWriter::dashes(const Stroke& stroke, NumberWriter numbers) {
    output_.raw(" stroke-dasharray=\"");
    for (const float length : stroke.getDashArray()) {
        numbers(length, output_.text());
        output_.raw(" ");
    }
    output_.text().back() = '"';
    const float offset = stroke.getDashOffset();
    if (offset != 0 && std::isfinite(offset)) output_.number(" stroke-dashoffset=\"", offset, numbers);
}

void SvgWriter::font(const Font& font, float scale, NumberWriter numbers) {
    const float size = std::min(font.getFontSize() * scale, Limits::kFontSize);
    output_.number(" font-size=\"", size, SvgOutput::numbersForSize(size, numbers));
    if (font.getFontFamily() != family_) useFamily(font.getFontFamily());
    output_.raw(familyAttribute_);
    if (font.getFontWeight() == DrawingFontWeight::Bold) output_.raw(" font-weight=\"bold\"");
    if (font.getFontStyle() == DrawingFontStyle::Italic) output_.raw(" font-style=\"italic\"");
}

void SvgWriter::useFamily(const String& family) {
    family_ = family;
    familyAttribute_.clear();
    const std::string families = svgFontFamilies(family.view());
    if (families == kSvgDefaultFamilies) return;
    SvgOutput attribute;
    attribute.quoted(" font-family=\"", String(families).view());
    familyAttribute_ = std::move(attribute.text());
}

}  // namespace VEXA
