#include "vexa/style/VexaRenderContext.h"

#include <algorithm>
#include <cmath>

#include "vexa/support/drawing/FontService.h"

namespace VEXA {

namespace {

constexpr char kSource[] = "VexaRenderContext";
constexpr int kNoExtent = 34011;

const Font& requireFont(const SmartPtr<Font>& font, int line) {
    if (font.isEmpty()) raise(UnreacheableCodeException("text is measured without a font"), kSource, line);
    return *font;
}

/// Whether a page length can be filled by scaling a view box's one.
bool isExtent(float viewBoxLength, float pageLength) {
    return std::isfinite(viewBoxLength) && viewBoxLength > 0 && std::isfinite(pageLength / viewBoxLength);
}

}  // namespace

VexaRenderContext::VexaRenderContext(SmartPtr<RenderContext> renderContext, float width, float height)
    : RenderContextScope(renderContext), renderContext_(std::move(renderContext)), width_(width), height_(height) {}

float VexaRenderContext::pxDiagonal(const LengthOrPercent& length) const noexcept {
    if (!length.isPercent()) return length.getLength().pxSize();
    const double width = width_;
    const double height = height_;
    return static_cast<float>(length.getPercent() * std::sqrt(width * width + height * height) / std::sqrt(2.0));
}

std::size_t VexaRenderContext::polygonsLeft(std::size_t corners) const noexcept {
    return cornersLeft_ / std::max<std::size_t>(corners, 1);
}

std::size_t VexaRenderContext::takePolygons(std::size_t wanted, std::size_t corners) noexcept {
    const std::size_t granted = std::min(wanted, polygonsLeft(corners));
    cornersLeft_ -= granted * corners;
    return granted;
}

void VexaRenderContext::translate(const Length& x, const Length& y) {
    renderContext_->addTranslateTransform(x.pxSize(), y.pxSize());
}

void VexaRenderContext::rotate(float angle) { renderContext_->addRotateTransform(angle); }

void VexaRenderContext::setClip(SmartPtr<Path> path) { renderContext_->setClip(std::move(path)); }

void VexaRenderContext::setFill(SmartPtr<Brush> fill) { renderContext_->setFill(std::move(fill)); }

void VexaRenderContext::setStroke(SmartPtr<Stroke> stroke) { renderContext_->setStroke(std::move(stroke)); }

void VexaRenderContext::setFont(SmartPtr<Font> font) { renderContext_->setFont(std::move(font)); }

void VexaRenderContext::drawLine(const Length& x1, const Length& y1, const Length& x2, const Length& y2) {
    renderContext_->drawLine(x1.pxSize(), y1.pxSize(), x2.pxSize(), y2.pxSize());
}

void VexaRenderContext::drawRectangle(const Length& x, const Length& y, const LengthOrPercent& width,
                                      const LengthOrPercent& height, const LengthOrPercent& rx,
                                      const LengthOrPercent& ry) {
    renderContext_->drawRectangle(x.pxSize(), y.pxSize(), pxWidth(width), pxHeight(height), pxWidth(rx), pxHeight(ry));
}

void VexaRenderContext::drawEllipse(const Length& cx, const Length& cy, const LengthOrPercent& r) {
    renderContext_->drawEllipse(cx.pxSize(), cy.pxSize(), pxWidth(r), pxHeight(r));
}

void VexaRenderContext::drawPolygon(const Vector<PointF>& points, bool closed) {
    renderContext_->drawPolygon(points, closed);
}

void VexaRenderContext::drawPath(SmartPtr<Path> path) { renderContext_->drawPath(std::move(path)); }

void VexaRenderContext::drawText(const String& text, const Length& x, const Length& y) {
    if (text.isEmpty()) return;
    renderContext_->drawText(text, static_cast<int>(text.length()), x.pxSize(), y.pxSize(), 0.0F, 0);
}

void VexaRenderContext::drawText(const String& text) { drawText(text, Length(), Length()); }

SizeF VexaRenderContext::measureText(const String& text, const SmartPtr<Font>& font) const {
    const float size = requireFont(font, 172).getFontSize();
    const SmartPtr<FontProgram> program = FontManager::getFont(font);
    const FontMetrics metrics = program->getMetrics();
    const auto unitsPerEm = static_cast<float>(metrics.unitsPerEm);
    return {static_cast<float>(longTexts_.measure(text, program)) * size / unitsPerEm,
            size * static_cast<float>(metrics.ascent + metrics.descent) / unitsPerEm};
}

SizeF VexaRenderContext::measureText(const String& text) const { return measureText(text, renderContext_->getFont()); }

float VexaRenderContext::getTextDescent() const {
    const SmartPtr<Font> font = renderContext_->getFont();
    const float size = requireFont(font, 202).getFontSize();
    const FontMetrics metrics = FontManager::getFont(font)->getMetrics();
    return size * static_cast<float>(metrics.descent) / static_cast<float>(metrics.unitsPerEm);
}

void VexaRenderContext::applyViewBox(const LengthOrPercent& width, const LengthOrPercent& height,
                                     const ViewBox& viewBox, SourcePlace place) {
    const SizeF page{pxWidth(width), pxHeight(height)};
    const SizeF box{pxWidth(viewBox.width), pxHeight(viewBox.height)};
    if (!isExtent(box.width, page.width) || !isExtent(box.height, page.height))
        raise(Exception(kNoExtent, {String(ValueTraits<ViewBox>::print(viewBox))}), kSource, __LINE__, place);

    const Length x(pxWidth(viewBox.x));
    const Length y(pxHeight(viewBox.y));
    renderContext_->setClip(PathCommand::rectangle(-1, -1, page.width + 2, page.height + 2, 0, 0));
    renderContext_->addScaleTransform(page.width / box.width, page.height / box.height);
    translate(x, y);
    origin_ = {x.pxSize(), y.pxSize()};
    width_ = box.width;
    height_ = box.height;
}

}  // namespace VEXA
