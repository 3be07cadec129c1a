#include "fuzz/support/DocumentPainting.h"

#include "vexa/engine/ChartDescription.h"
#include "vexa/engine/VexaEngine.h"
#include "vexa/support/core/Limits.h"
#include "vexa/support/core/Log.h"
#include "vexa/surfaces/DisplayListSurface.h"
#include "vexa/surfaces/SvgSurface.h"

namespace VEXA::Fuzz {

namespace {

/// A message quotes a few pieces of the document, each cut; its own words are short.
constexpr std::size_t kMessageCharacters = 10 * Limits::kQuotedCharacters;

class MessageCheck final : public LogSink {
public:
    void write(const LogRecord& record) override {
        if (record.severity == Severity::Warning && ++warnings_ > Limits::kWarnings + 1) fault = "too many warnings";
        check(record.message);
    }
    void check(const String& message) {
        if (message.isEmpty()) fault = "a message without words";
        if (message.length() > kMessageCharacters) fault = "an endless message: " + message.toUtf8();
        for (const char32_t c : message.view())
            if (c < U' ' || c == U'\x7f') fault = "a control character in a message: " + message.toUtf8();
    }

    std::string fault;

private:
    std::size_t warnings_ = 0;
};

void paintPage(VexaRoot& root, const SmartPtr<RenderContext>& surface, SizeF page) {
    surface->setDocumentInfo(describeChart(root));
    surface->beginDocument();
    surface->beginPage(page);
    root.render(surface, VexaEngine::kReferenceWidth, VexaEngine::kReferenceHeight);
    surface->endPage();
    surface->endDocument();
}

}  // namespace

Painting paint(std::string_view document, const SurfaceMaker& makeSurface) {
    Painting painting;
    MessageCheck messages;
    const LogScope log(messages);
    const WarningLimitScope limit;
    try {
        const XmlObjPtr<VexaRoot> root = VexaEngine::loadStream(make<IO::ViewStream>(document));
        painting.page = {root->getWidth(VexaEngine::kReferenceWidth), root->getHeight(VexaEngine::kReferenceHeight)};
        const auto stream = make<IO::MemoryStream>();
        paintPage(*root, makeSurface(stream, painting.page), painting.page);
        painting.bytes = stream->takeBytes();
    } catch (const Exception& e) {
        painting.refusal = e.getCode();
        messages.check(e.getMessage());
    }
    painting.fault = messages.fault;
    return painting;
}

SmartPtr<RenderContext> displayListSurface(SmartPtr<IO::Stream> stream, SizeF) {
    return make<DisplayListSurface>(std::move(stream));
}

SmartPtr<RenderContext> svgSurface(SmartPtr<IO::Stream> stream, SizeF) { return make<SvgSurface>(std::move(stream)); }

}  // namespace VEXA::Fuzz
