#include "cli/RenderCommand.h"

#include <filesystem>
#include <system_error>
#include <thread>

#include "cli/JobRunner.h"
#include "cli/Messages.h"
#include "cli/Progress.h"
#include "cli/RenderPlan.h"

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

unsigned threadsFor(const RenderOptions& options) {
    if (options.inputs.size() == 1) return 1;  // counting the cores reads a file
    return options.jobs > 0 ? options.jobs : std::thread::hardware_concurrency();
}

/// Draws all and tells how it went; the number of documents that failed.
std::size_t runPlan(const RenderPlan& plan, unsigned threads, const Painter& paint, Console& console) {
    Progress progress(console, plan.jobs.size());
    std::size_t failed = 0;
    const auto report = [&](std::size_t, const RenderResult& result) {
        if (result.failed) ++failed;
        if (result.messages.empty()) return;
        progress.clear();
        console.write(result.messages);
    };
    runJobs(plan.jobs.size(), threads, [&](std::size_t index) { return renderDocument(plan.jobs[index], paint); },
            {report, [&](std::size_t done) { progress.show(done, failed); }});
    return failed;
}

}  // namespace

ExitStatus render(const RenderOptions& options, const Painter& paint, Console& console) {
    const RenderPlan plan = planRender(options);
    if (!plan.problem.empty()) {
        console.write("vexa render: " + printable(plan.problem) + "\nvexa render --help tells how.\n");
        return kWrongUsage;
    }
    if (const std::string problem = makeDirectory(options.outputDirectory); !problem.empty()) {
        console.write(problem);
        return kFailed;
    }
    return runPlan(plan, threadsFor(options), paint, console) == 0 ? kDone : kFailed;
}

}  // namespace VEXA::Cli
