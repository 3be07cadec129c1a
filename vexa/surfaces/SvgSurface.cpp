#include "vexa/surfaces/SvgSurface.h"

#include <algorithm>

#include "vexa/support/core/Exception.h"
#include "vexa/surfaces/SvgRoot.h"
#include "vexa/surfaces/SvgWriter.h"

namespace VEXA {

struct SvgSurface::Body {
    SvgWriter writer;
    std::optional<SizeF> page;
};

SvgSurface::SvgSurface(SmartPtr<IO::Stream> stream) : body_(std::make_unique<Body>()), stream_(std::move(stream)) {}

SvgSurface::~SvgSurface() = default;

void SvgSurface::beginDocument() {
    body_->writer.clear();
    body_->page.reset();
}

void SvgSurface::endDocument() {
    SvgWriter& writer = body_->writer;
    writer.finish();
    std::string head = svgRoot(documentInfo(), body_->page);
    if (!writer.definitions().empty()) head.append("<defs>\n").append(writer.definitions()).append("</defs>\n");
    stream_->give(std::move(writer.content().insert(0, head).append("</svg>\n")));
    stream_->flush();
    beginDocument();
}

void SvgSurface::beginPage(const SizeF& size) {
    if (body_->page)
        raise(UnreacheableCodeException("an SVG document has one page; a second one was begun"), "SvgSurface",
              __LINE__);
    body_->page = size;
}

void SvgSurface::endPage() { body_->writer.finish(); }

void SvgSurface::drawLine(float x1, float y1, float x2, float y2) { body_->writer.line(state(), {x1, y1}, {x2, y2}); }

void SvgSurface::drawRectangle(float x, float y, float width, float height, float rx, float ry) {
    body_->writer.rectangle(state(), {x, y, width, height}, {rx, ry});
}

void SvgSurface::drawEllipse(float cx, float cy, float rx, float ry) {
    body_->writer.ellipse(state(), {cx, cy}, {rx, ry});
}

void SvgSurface::drawPath(SmartPtr<Path> path) { body_->writer.path(state(), *path); }

void SvgSurface::drawText(const String& text, int length, float x, float y, float spacing, int) {
    const auto shown = text.view().substr(0, static_cast<std::size_t>(std::max(length, 0)));
    body_->writer.text(state(), shown, {x, y}, spacing);
}

}  // namespace VEXA
