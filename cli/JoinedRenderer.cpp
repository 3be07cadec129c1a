#include "cli/JoinedRenderer.h"

namespace VEXA::Cli {

SmartPtr<RenderContext> JoinedRenderer::surface() {
    if (!pages_.surface || failed_ > 0) {
        const RenderJob& job = plan_.jobs.front();
        file_ = make<IO::MemoryStream>();
        pages_ = joinPages(job.format, file_, job.picture);
    }
    return pages_.surface;
}

RenderResult JoinedRenderer::drawNext() {
    const RenderJob& job = plan_.jobs[drawn_++];
    MessageCollector messages(inputName(job.input));
    const LogScope scope(messages);
    const bool done = paintDocument(
        job, paint_, [&] { return surface(); }, messages);
    if (!done) ++failed_;
    return {!done, messages.takeLines()};
}

RenderResult JoinedRenderer::writeFile() {
    const std::string& output = plan_.jobs.front().output;
    MessageCollector messages(outputName(output));
    if (failed_ > 0) {
        messages.addError(SourcePlace{}, "not written, because " + std::to_string(failed_) + " of its " +
                                             std::to_string(plan_.jobs.size()) + " pages would be missing");
        return {true, messages.takeLines()};
    }
    const bool done = writePicture(output, *file_, pages_.finish, messages);
    return {!done, messages.takeLines()};
}

}  // namespace VEXA::Cli
