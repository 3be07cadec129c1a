#include "cli/RenderCommand.h"

#include <filesystem>
#include <system_error>
#include <thread>

#include "cli/CallersFonts.h"
#include "cli/DocumentRenderer.h"
#include "cli/JobRunner.h"
#include "cli/JoinedRenderer.h"
#include "cli/Messages.h"
#include "cli/Progress.h"
#include "cli/RenderPlan.h"
#include "cli/watch/Watch.h"

namespace VEXA::Cli {
namespace {

/// Makes the directory where one is named. Empty, or a message that says why it cannot be.
std::string makeDirectory(const std::string& directory) {
    if (directory.empty()) return {};
    std::error_code error;
    std::filesystem::create_directories(directory, error);
    if (!error) return {};
    return messageLine(directory, {}, Severity::Error, "the directory cannot be made: " + error.message());
}

unsigned threadsFor(const RenderPlan& plan, const RenderOptions& options) {
    if (plan.isJoined || plan.jobs.size() == 1) return 1;  // counting the cores reads a file
    return options.jobs > 0 ? options.jobs : std::thread::hardware_concurrency();
}

/// Tells how the jobs of a plan go.
class Report {
public:
    Report(std::size_t total, Console& console) : console_(console), progress_(console, total) {}

    void add(const RenderResult& result) {
        if (result.failed) ++failed_;
        if (result.messages.empty()) return;
        progress_.clear();
        console_.write(result.messages);
    }
    void showProgress(std::size_t done) { progress_.show(done, failed_); }
    ExitStatus status() const noexcept { return failed_ == 0 ? kDone : kFailed; }

private:
    Console& console_;
    Progress progress_;
    std::size_t failed_ = 0;
};

/// Draws all and tells how it went.
ExitStatus runPlan(const RenderPlan& plan, unsigned threads, const Painter& paint, Console& console) {
    Report report(plan.jobs.size(), console);
    JoinedRenderer joined(plan, paint);
    const auto draw = [&](std::size_t index) {
        return plan.isJoined ? joined.drawNext() : renderDocument(plan.jobs[index], paint);
    };
    runJobs(plan.jobs.size(), threads, draw,
            {[&](std::size_t, const RenderResult& result) { report.add(result); },
             [&](std::size_t done) { report.showProgress(done); }});
    if (plan.isJoined) report.add(joined.writeFile());
    return report.status();
}

/// A library that the format needs and that is missing is told once, not for each document.
void loadLibraries(const RenderJob& job) {
    static_cast<void>(makeSurface(job.format, make<IO::MemoryStream>(), job.picture));
}

ExitStatus refuse(const std::string& problem, Console& console, ExitStatus status = kWrongUsage) {
    console.write(usageMessage("render", problem));
    return status;
}

/// Draws all documents once.
ExitStatus renderOnce(const RenderOptions& options, const Painter& paint, Console& console) {
    const RenderPlan plan = planRender(options);
    if (!plan.problem.empty()) return refuse(plan.problem, console, plan.status);
    std::shared_ptr<FontService> fonts;
    if (!options.fontDirectories.empty()) {
        fonts = callersFonts(options.fontDirectories);
        if (fonts == nullptr) return refuse("--font-dir is not for this vexa, which was built without fonts", console);
    }
    const FontServiceScope scope(std::move(fonts));
    loadLibraries(plan.jobs.front());
    if (const std::string problem = makeDirectory(options.outputDirectory); !problem.empty()) {
        console.write(problem);
        return kFailed;
    }
    return runPlan(plan, threadsFor(plan, options), paint, console);
}

}  // namespace

ExitStatus render(const RenderOptions& options, const Painter& paint, Console& console) {
    const auto draw = [&](const RenderOptions& some) { return renderOnce(some, paint, console); };
    return options.isWatching ? watch(options, draw, console) : draw(options);
}

}  // namespace VEXA::Cli
