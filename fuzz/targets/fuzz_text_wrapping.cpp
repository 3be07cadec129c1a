// A text broken into lines of any width, NaN included: no character but white space is lost or made up.

#include <fuzzer/FuzzedDataProvider.h>

#include <bit>

#include "fuzz/support/Fault.h"
#include "vexa/legend/VexaTextWrapper.h"
#include "vexa/support/core/Limits.h"
#include "vexa/support/core/Log.h"
#include "vexa/support/drawing/FontService.h"
#include "vexa/surfaces/NullSurface.h"

using namespace VEXA;

namespace {

class NoLog final : public LogSink {
public:
    void write(const LogRecord&) override {}
};

void appendWords(const String& text, std::u32string& out) {
    for (const char32_t c : text.view())
        if (!String::isSpace(c)) out += c;
}

/// Of a width that lies near those of texts as a rule.
float widthFrom(FuzzedDataProvider& input) {
    if (input.ConsumeBool()) return static_cast<float>(input.ConsumeIntegral<std::uint16_t>()) / 16;
    return std::bit_cast<float>(input.ConsumeIntegral<std::uint32_t>());
}

void checkLines(const String& text, const VexaTextWrapper& wrapper, const Vector<String>& lines) {
    std::u32string words;
    std::u32string kept;
    appendWords(text, words);
    for (const String& line : lines) appendWords(line, kept);
    Fuzz::expect(lines.size() <= Limits::kCaptionLines, "too many lines");
    Fuzz::expect(lines.size() == wrapper.getLineSizes().size(), "a line without a size");
    Fuzz::expect(words.starts_with(kept), "the lines are not the start of the text");
    Fuzz::expect(wrapper.isCut() || lines.size() == Limits::kCaptionLines || kept == words, "words are lost");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::shared_ptr<FontService> fonts[] = {fixedWidthFontService(), builtInFontService(),
                                                         defaultFontService()};
    FuzzedDataProvider input(data, size);
    FontManager::setService(input.PickValueInArray(fonts));
    const WrapMode mode = input.ConsumeBool() ? WrapMode::SplitWords : WrapMode::KeepWords;
    const float width = widthFrom(input);
    const auto font = make<Font>();
    font->setFontSize(std::bit_cast<float>(input.ConsumeBool() ? 0x41200000U : input.ConsumeIntegral<std::uint32_t>()));
    const String text(input.ConsumeRemainingBytesAsString());

    NoLog log;
    const LogScope scope(log);
    VexaRenderContext context(make<NullSurface>(), 800, 600);
    context.setFont(font);
    VexaTextWrapper wrapper(text, mode, context, width);
    checkLines(text, wrapper, wrapper.wrap());
    return 0;
}
