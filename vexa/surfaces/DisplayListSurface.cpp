#include "vexa/surfaces/DisplayListSurface.h"

#include <algorithm>

#include "vexa/surfaces/DisplayListWriter.h"

namespace VEXA {

DisplayListSurface::DisplayListSurface(SmartPtr<IO::Stream> stream)
    : stream_(std::move(stream)), writer_(std::make_unique<DisplayListWriter>()) {}

DisplayListSurface::~DisplayListSurface() = default;

void DisplayListSurface::beginDocument() {
    writer_->begin("beginDocument");
    endLine();
}

void DisplayListSurface::endDocument() {
    writer_->begin("endDocument");
    endLine();
    flush();
}

void DisplayListSurface::beginPage(const SizeF& size) {
    writer_->begin("beginPage");
    writer_->number("width", size.width);
    writer_->number("height", size.height);
    endLine();
}

void DisplayListSurface::endPage() {
    writer_->begin("endPage");
    endLine();
    flush();
}

void DisplayListSurface::drawLine(float x1, float y1, float x2, float y2) {
    writer_->begin("line");
    writer_->number("x1", x1);
    writer_->number("y1", y1);
    writer_->number("x2", x2);
    writer_->number("y2", y2);
    writer_->placement(state());
    writer_->stroke(state());
    endLine();
}

void DisplayListSurface::drawRectangle(float x, float y, float width, float height, float rx, float ry) {
    writer_->begin("rectangle");
    writer_->number("x", x);
    writer_->number("y", y);
    writer_->number("width", width);
    writer_->number("height", height);
    writer_->number("rx", rx);
    writer_->number("ry", ry);
    writer_->placement(state());
    writer_->fill(state());
    writer_->stroke(state());
    endLine();
}

void DisplayListSurface::drawEllipse(float cx, float cy, float rx, float ry) {
    writer_->begin("ellipse");
    writer_->number("cx", cx);
    writer_->number("cy", cy);
    writer_->number("rx", rx);
    writer_->number("ry", ry);
    writer_->placement(state());
    writer_->fill(state());
    writer_->stroke(state());
    endLine();
}

void DisplayListSurface::drawPath(SmartPtr<Path> path) {
    writer_->begin("path");
    writer_->path("d", *path);
    writer_->placement(state());
    writer_->fill(state());
    writer_->stroke(state());
    endLine();
}

void DisplayListSurface::drawText(const String& text, int length, float x, float y, float spacing, int) {
    writer_->begin("text");
    writer_->string("text", text.view().substr(0, static_cast<std::size_t>(std::max(length, 0))));
    writer_->number("x", x);
    writer_->number("y", y);
    if (spacing != 0) writer_->number("spacing", spacing);
    if (state().font) writer_->font(*state().font);
    writer_->placement(state());
    writer_->fill(state());
    endLine();
}

void DisplayListSurface::flush() {
    stream_->write(writer_->text());
    stream_->flush();
    writer_->text().clear();
}

void DisplayListSurface::endLine() {
    constexpr std::size_t kBlock = 64 * 1024;
    writer_->end();
    if (writer_->text().size() < kBlock) return;
    stream_->write(writer_->text());
    writer_->text().clear();
}

}  // namespace VEXA
