#include "cli/DocumentRenderer.h"

#include <exception>
#include <new>

#include "cli/Messages.h"
#include "vexa/support/core/Exception.h"

namespace VEXA::Cli {
namespace {

/// Passes a document on, and knows afterwards whether there was anything in it.
class DocumentStream final : public IO::Stream {
public:
    explicit DocumentStream(SmartPtr<IO::Stream> source) : source_(std::move(source)) {}

    std::size_t read(void* buffer, std::size_t size) override {
        const std::size_t count = source_->read(buffer, size);
        isEmpty_ = isEmpty_ && count == 0;
        return count;
    }
    void write(const void* data, std::size_t size) override { source_->write(data, size); }

    bool isEmpty() const noexcept { return isEmpty_; }

private:
    SmartPtr<IO::Stream> source_;
    bool isEmpty_ = true;
};

SmartPtr<IO::Stream> openInput(const std::string& input) {
    if (input == kStandardStream) return IO::FileStream::standardInput();
    return make<IO::FileStream>(input, IO::FileStream::Mode::Read);
}

void writeOutput(const std::string& output, std::string_view bytes) {
    if (output != kStandardStream) return IO::writeWholeFile(output, bytes);
    IO::FileStream::standardOutput()->write(bytes.data(), bytes.size());
}

/// A document without a usable top element has no element that could be named, so its start is.
SourcePlace placeOf(const Exception& error) {
    const std::string_view source = error.getCodeLocation().source;
    const bool wholeDocument = source == "VexaEngine" || source == "SmartPtr";
    return wholeDocument && !error.getPlace().isKnown() ? SourcePlace{1, 1} : error.getPlace();
}

/// Runs one step; what it throws becomes an error told by `tell`. False when it failed.
template <class Step, class Tell>
bool succeeds(Step step, Tell tell) {
    try {
        step();
        return true;
    } catch (const Exception& error) {
        tell(placeOf(error), error.what());
    } catch (const std::bad_alloc&) {
        tell(SourcePlace{}, "there is not enough memory");
    } catch (const std::exception& error) {
        tell(SourcePlace{}, error.what());
    }
    return false;
}

/// The picture in memory, so that a document that fails leaves no file.
bool paintDocument(const RenderJob& job, const Painter& paint, IO::MemoryStream& picture, MessageCollector& messages) {
    SmartPtr<DocumentStream> document;
    const auto load = [&] {
        document = make<DocumentStream>(openInput(job.input));
        paint(document, makeSurface(job.format, &picture));
    };
    return succeeds(load, [&](SourcePlace place, std::string_view text) {
        const bool isEmpty = place.isKnown() && document && document->isEmpty();
        messages.addError(place,
                          isEmpty ? "the document is empty; a chart document starts with the element root" : text);
    });
}

bool writePicture(const RenderJob& job, const IO::MemoryStream& picture, MessageCollector& messages) {
    return succeeds([&] { writeOutput(job.output, picture.bytes()); },
                    [&](SourcePlace, std::string_view text) { messages.addError(outputName(job.output), text); });
}

}  // namespace

RenderResult renderDocument(const RenderJob& job, const Painter& paint) {
    MessageCollector messages(inputName(job.input));
    const LogScope scope(messages);
    const SmartPtr<IO::MemoryStream> picture = make<IO::MemoryStream>();
    const bool done = paintDocument(job, paint, *picture, messages) && writePicture(job, *picture, messages);
    return {!done, messages.takeLines()};
}

}  // namespace VEXA::Cli
