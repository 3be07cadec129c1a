#include "cli/DocumentRenderer.h"

namespace VEXA::Cli {

RenderResult renderDocument(const RenderJob& job, const Painter& paint) {
    MessageCollector messages(inputName(job.input));
    const LogScope scope(messages);
    const auto picture = make<IO::MemoryStream>();  // in memory, so that a document that fails leaves no file
    const auto open = [&] { return makeSurface(job.format, picture, job.picture); };
    const bool done = paintDocument(job, paint, open, messages) && writePicture(
                                                                       job.output, *picture, [] {}, messages);
    return {!done, messages.takeLines()};
}

}  // namespace VEXA::Cli
