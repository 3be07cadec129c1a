#pragma once

#include "vexa/support/drawing/RenderContext.h"

namespace VEXA {

/// Takes every operation and paints nothing: for checks and measurements.
class NullSurface final : public RenderContext {
public:
    void beginDocument() override {}
    void endDocument() override {}
    void beginPage(const SizeF&) override {}
    void endPage() override {}
    void drawLine(float, float, float, float) override {}
    void drawRectangle(float, float, float, float, float, float) override {}
    void drawEllipse(float, float, float, float) override {}
    void drawPath(SmartPtr<Path>) override {}
    void drawText(const String&, int, float, float, float, int) override {}
};

}  // namespace VEXA
