#include "cli/DocumentRenderer.h"

#include <exception>
#include <new>

#include "cli/Messages.h"
#include "vexa/support/core/Exception.h"

namespace VEXA::Cli {
namespace {

/// Passes a document on, and knows afterwards whether there was an element in it.
class DocumentStream final : public IO::Stream {
public:
    explicit DocumentStream(SmartPtr<IO::Stream> source) : source_(std::move(source)) {}

    std::size_t read(void* buffer, std::size_t size) override {
        const std::size_t count = source_->read(buffer, size);
        const std::string_view bytes(static_cast<const char*>(buffer), count);
        for (std::size_t i = 0; i < count && state_ != State::Element; ++i) see(bytes[i]);
        return count;
    }
    void write(const void* data, std::size_t size) override { source_->write(data, size); }

    bool hasElement() const noexcept { return state_ == State::Element; }

private:
    enum class State : std::uint8_t { Outside, Comment, Instruction, Element };

    bool endsWith(std::string_view end) const noexcept { return std::string_view(last_).ends_with(end); }
    void enter(State state) noexcept {
        state_ = state;
        last_.assign(kLongestMark, ' ');
    }

    /// What stands before the first element: blanks, comments and instructions.
    void see(char byte) {
        if (byte == '\0') return;  // half of a character in UTF-16
        last_.erase(0, 1);
        last_ += byte;
        if (state_ == State::Comment || state_ == State::Instruction) {
            if (endsWith(state_ == State::Comment ? "-->" : "?>")) enter(State::Outside);
        } else if (endsWith("<!--")) {
            enter(State::Comment);
        } else if (endsWith("<?")) {
            enter(State::Instruction);
        } else if (last_[kLongestMark - 2] == '<' && byte != '!') {
            enter(State::Element);
        }
    }

    static constexpr std::size_t kLongestMark = 4;
    SmartPtr<IO::Stream> source_;
    State state_ = State::Outside;
    std::string last_ = std::string(kLongestMark, ' ');
};

SmartPtr<IO::Stream> openInput(const std::string& input) {
    if (input == kStandardStream) return IO::FileStream::standardInput();
    return make<IO::FileStream>(input, IO::FileStream::Mode::Read);
}

void writeOutput(const std::string& output, std::string_view bytes) {
    if (output != kStandardStream) return IO::writeWholeFile(output, bytes);
    IO::FileStream::standardOutput()->write(bytes.data(), bytes.size());
}

/// Paints; where there is no element, the engine misses an object, and the reader of the message needs plainer words.
void paintFrom(DocumentStream& document, const Painter& paint, SmartPtr<RenderContext> surface) {
    try {
        paint(&document, std::move(surface));
    } catch (const NullPointerException& error) {
        if (error.getPlace().isKnown() || document.hasElement()) throw;
        raise(UnreacheableCodeException("the document is empty; a chart document starts with the element root"),
              "DocumentRenderer", __LINE__, {1, 1});
    }
}

/// A document without a usable top element has no element that could be named, so its start is.
SourcePlace placeOf(const Exception& error) {
    const bool wholeDocument = std::string_view(error.getCodeLocation().source) == "VexaEngine";
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
    const auto load = [&] {
        const auto document = make<DocumentStream>(openInput(job.input));
        paintFrom(*document, paint, makeSurface(job.format, &picture));
    };
    return succeeds(load, [&](SourcePlace place, std::string_view text) { messages.addError(place, text); });
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
