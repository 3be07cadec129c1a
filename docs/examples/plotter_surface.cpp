#include <algorithm>
#include <cmath>
#include <string>

#include "vexa/engine/VexaEngine.h"
#include "vexa/support/core/Stream.h"
#include "vexa/support/drawing/RenderContext.h"

using namespace VEXA;

/// Draws the outlines of a picture with the pen of a plotter, in HP-GL: PU goes to a point, PD draws to it, LB writes.
class PlotterSurface final : public RenderContext {
public:
    explicit PlotterSurface(SmartPtr<IO::Stream> stream) : stream_(std::move(stream)) {}

    void beginDocument() override { commands_ = "IN;SP1;\n"; }
    void beginPage(const SizeF& size) override { pageHeight_ = size.height; }
    void endPage() override { commands_ += "PU;PG;\n"; }
    void endDocument() override { stream_->write(commands_); }

    void drawLine(float x1, float y1, float x2, float y2) override {
        drawPath(PathCommand::polygon({{x1, y1}, {x2, y2}}, false));
    }
    void drawRectangle(float x, float y, float width, float height, float rx, float ry) override {
        drawPath(PathCommand::rectangle(x, y, width, height, rx, ry));
    }
    void drawEllipse(float cx, float cy, float rx, float ry) override {
        drawPath(PathCommand::ellipse(cx, cy, rx, ry));
    }
    void drawPath(SmartPtr<Path> path) override;
    void drawText(const String& text, int length, float x, float y, float spacing, int flags) override;

private:
    /// Goes or draws to a point of the user's space, which the transform in force takes to the page.
    void move(const char* command, PointF to);
    void drawCurve(PointF from, const PointF* controls);

    SmartPtr<IO::Stream> stream_;
    std::string commands_;
    float pageHeight_ = 0;
};

void PlotterSurface::move(const char* command, PointF to) {
    constexpr float kUnitsPerPixel = 1016.0F / 96.0F;  // a plotter counts 40 units to the millimetre
    constexpr float kLargest = 32767.0F;               // and holds them in 16 bits
    const PointF page = state().transform.apply(to);
    const float x = page.x * kUnitsPerPixel;
    const float y = (pageHeight_ - page.y) * kUnitsPerPixel;  // its y runs upward
    if (!std::isfinite(x) || !std::isfinite(y)) return;
    commands_ += command + std::to_string(std::lround(std::clamp(x, -kLargest, kLargest))) + "," +
                 std::to_string(std::lround(std::clamp(y, -kLargest, kLargest))) + ";";
}

void PlotterSurface::drawCurve(PointF from, const PointF* controls) {
    constexpr int kPieces = 16;
    for (int i = 1; i <= kPieces; ++i) {
        const float t = static_cast<float>(i) / kPieces;
        const float s = 1 - t;
        const float weights[] = {s * s * s, 3 * s * s * t, 3 * s * t * t, t * t * t};  // Bernstein's polynomials
        const PointF* c = controls;
        move("PD", {weights[0] * from.x + weights[1] * c[0].x + weights[2] * c[1].x + weights[3] * c[2].x,
                    weights[0] * from.y + weights[1] * c[0].y + weights[2] * c[1].y + weights[3] * c[2].y});
    }
}

void PlotterSurface::drawPath(SmartPtr<Path> path) {
    if (!state().stroke || !state().stroke->paints()) return;  // a pen cannot fill
    const PointF* next = path->points().data();
    PointF start;
    PointF pen;
    for (const PathVerb verb : path->verbs()) {
        switch (verb) {
            case PathVerb::MoveTo:
                move("PU", start = pen = *next++);
                break;
            case PathVerb::LineTo:
                move("PD", pen = *next++);
                break;
            case PathVerb::CurveTo:
                drawCurve(pen, next);
                pen = next[2];
                next += 3;
                break;
            case PathVerb::Close:
                move("PD", pen = start);
                break;
        }
    }
    commands_ += "\n";
}

void PlotterSurface::drawText(const String& text, int length, float x, float y, float, int) {
    if (!state().fill || !state().fill->paints()) return;
    move("PU", {x, y});
    commands_ += "LB" + text.subString(0, static_cast<std::size_t>(length)).toUtf8() + "\x03;\n";
}

int main(int, char** argv) {
    const auto chart = make<IO::FileStream>(argv[1], IO::FileStream::Mode::Read);
    VexaEngine::renderPage(chart, make<PlotterSurface>(IO::FileStream::standardOutput()));
}
