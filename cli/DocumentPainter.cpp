#include "cli/DocumentPainter.h"

#include <sys/stat.h>

#include <exception>
#include <new>

#include "cli/DocumentStream.h"
#include "cli/Interruption.h"
#include "cli/RenderOptions.h"
#include "vexa/engine/ChartNamespace.h"
#include "vexa/support/core/Exception.h"
#include "vexa/support/core/StringTable.h"

namespace VEXA::Cli {
namespace {

constexpr int kEmptyDocument = 34115;
constexpr int kNoMemory = 35100;
constexpr int kStrict = 35101;

/// Whether a name is one of a pipe or a device, which may keep its writer waiting.
bool isSpecialFile(const std::string& name) {
    struct stat status = {};
    return ::stat(name.c_str(), &status) == 0 && !S_ISREG(status.st_mode);
}

void writeOutput(const std::string& output, std::string_view bytes) {
    if (output == kStandardStream) return IO::FileStream::standardOutput()->write(bytes);
    if (isSpecialFile(output)) return IO::writeWholeFile(output, bytes);
    const UninterruptedScope scope;
    IO::writeWholeFile(output, bytes);
}

/// Paints; where there is no element, the engine misses an object, and the reader of the message needs plainer words.
void paintFrom(DocumentStream& document, const Painter& paint, SmartPtr<RenderContext> surface) {
    try {
        paint(&document, std::move(surface));
    } catch (const NullPointerException& error) {
        if (error.getPlace().isKnown() || document.hasElement()) throw;
        raise(Exception(kEmptyDocument, {String(chartNamespace().uri)}), "DocumentPainter", __LINE__, {1, 1});
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
        tell(SourcePlace{}, findMessage(kNoMemory));
    } catch (const std::exception& error) {
        tell(SourcePlace{}, error.what());
    }
    return false;
}

}  // namespace

SmartPtr<IO::Stream> openInput(const std::string& input) {
    if (input == kStandardStream) return IO::FileStream::standardInput();
    return make<IO::FileStream>(input, IO::FileStream::Mode::Read);
}

bool paintDocument(const RenderJob& job, const Painter& paint, const std::function<SmartPtr<RenderContext>()>& open,
                   MessageCollector& messages) {
    const auto load = [&] {
        const auto document = make<DocumentStream>(openInput(job.input));
        paintFrom(*document, paint, open());
    };
    if (!succeeds(load, [&](SourcePlace place, std::string_view text) { messages.addError(place, text); }))
        return false;
    if (!job.isStrict || !messages.hasWarnings()) return true;
    messages.addError(SourcePlace{}, findMessage(kStrict));
    return false;
}

bool writePicture(const std::string& output, const IO::MemoryStream& picture, const std::function<void()>& finish,
                  MessageCollector& messages) {
    const auto write = [&] {
        finish();
        writeOutput(output, picture.bytes());
    };
    return succeeds(write, [&](SourcePlace, std::string_view text) { messages.addError(outputName(output), text); });
}

}  // namespace VEXA::Cli
