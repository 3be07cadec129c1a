#include "vexa/surfaces/cairo/CairoSurface.h"

#include <algorithm>
#include <cmath>

#include "vexa/surfaces/cairo/CairoPainter.h"
#include "vexa/surfaces/cairo/PdfPages.h"
#include "vexa/surfaces/cairo/PngPage.h"

namespace VEXA {

struct CairoSurface::Body {
    SmartPtr<IO::Stream> stream;
    std::unique_ptr<CairoPages> pages;
    CairoPainter painter;
};

SmartPtr<CairoSurface> CairoSurface::png(SmartPtr<IO::Stream> stream, PngOptions options) {
    auto pages = std::make_unique<PngPage>(std::move(options));
    return make<CairoSurface>(std::make_unique<Body>(Body{std::move(stream), std::move(pages), {}}));
}

SmartPtr<CairoSurface> CairoSurface::pdf(SmartPtr<IO::Stream> stream, PdfOptions options) {
    auto pages = std::make_unique<PdfPages>(std::move(options));
    return make<CairoSurface>(std::make_unique<Body>(Body{std::move(stream), std::move(pages), {}}));
}

CairoSurface::CairoSurface(std::unique_ptr<Body> body) : body_(std::move(body)) { cairo(); }

CairoSurface::~CairoSurface() = default;

void CairoSurface::beginDocument() {
    body_->painter.drop();
    body_->pages->beginDocument();
}

void CairoSurface::endDocument() {
    if (body_->painter.hasPage()) endPage();
    body_->pages->endDocument(documentInfo(), *body_->stream);
}

void CairoSurface::beginPage(const SizeF& size) { body_->painter.begin(body_->pages->beginPage(size)); }

void CairoSurface::endPage() {
    body_->painter.requirePage();
    body_->painter.end();
    body_->pages->endPage();
}

void CairoSurface::drawLine(float x1, float y1, float x2, float y2) {
    drawPath(PathCommand::polygon({{x1, y1}, {x2, y2}}, false));
}

void CairoSurface::drawRectangle(float x, float y, float width, float height, float rx, float ry) {
    drawPath(PathCommand::rectangle(x, y, width, height, rx, ry));
}

void CairoSurface::drawEllipse(float cx, float cy, float rx, float ry) {
    drawPath(PathCommand::ellipse(cx, cy, std::abs(rx), std::abs(ry)));
}

void CairoSurface::drawPath(SmartPtr<Path> path) {
    body_->painter.requirePage();
    body_->painter.shape(state(), *path);
}

void CairoSurface::drawText(const String& text, int length, float x, float y, float spacing, int) {
    body_->painter.requirePage();
    const auto shown = static_cast<std::size_t>(std::max(length, 0));
    body_->painter.text(state(), shown < text.length() ? text.subString(0, shown) : text, {x, y}, spacing);
}

void CairoSurface::finish() {
    body_->painter.drop();
    body_->pages->finish(*body_->stream);
}

}  // namespace VEXA
