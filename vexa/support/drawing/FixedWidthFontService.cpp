#include <cstdint>

#include "vexa/support/core/Math.h"
#include "vexa/support/drawing/FontService.h"

namespace VEXA {

namespace {

class FixedWidthProgram final : public FontProgram {
public:
    explicit FixedWidthProgram(int advance) noexcept : advance_(advance) {}

    FontMetrics getMetrics() const noexcept override { return {1000, 800, 200}; }
    int measureString(const String& text) const override {
        return Math::toInt(static_cast<double>(text.length()) * advance_);
    }

private:
    int advance_;
};

class FixedWidthFontService final : public FontService {
public:
    explicit FixedWidthFontService(int advance) : program_(make<FixedWidthProgram>(advance)) {}

    SmartPtr<FontProgram> getFont(const Font&) override { return program_; }

private:
    SmartPtr<FontProgram> program_;
};

}  // namespace

std::shared_ptr<FontService> fixedWidthFontService(int advance) {
    return std::make_shared<FixedWidthFontService>(advance);
}

}  // namespace VEXA
