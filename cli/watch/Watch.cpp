#include "cli/watch/Watch.h"

#include <algorithm>
#include <chrono>

#include "cli/Messages.h"
#include "cli/watch/FileWatch.h"

namespace VEXA::Cli {
namespace {

using Clock = std::chrono::steady_clock;

std::string problemOf(const RenderOptions& options) {
    const auto isStandard = [](const std::string& name) { return name == kStandardStream; };
    if (std::ranges::any_of(options.inputs, isStandard)) return "--watch is for files: standard input does not change";
    if (isStandard(options.output)) return "--watch is for files: standard output cannot be drawn to twice";
    return {};
}

/// The options for drawing what has changed: pages of one file are drawn all, since it is written whole.
RenderOptions optionsFor(const RenderOptions& all, const std::vector<std::size_t>& changed) {
    RenderOptions some = all;
    if (all.outputDirectory.empty()) return some;
    some.inputs.clear();
    for (const std::size_t i : changed) some.inputs.push_back(all.inputs[i]);
    return some;
}

std::string resultLine(const RenderOptions& drawn, ExitStatus status, Clock::duration time) {
    const std::string what =
        drawn.inputs.size() == 1 ? printable(drawn.inputs.front()) : std::to_string(drawn.inputs.size()) + " documents";
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(time).count();
    if (status != kDone) return what + ": not drawn; waiting for a change\n";
    return what + ": drawn in " + std::to_string(milliseconds) + " ms; waiting for a change\n";
}

}  // namespace

ExitStatus watch(const RenderOptions& options, const std::function<ExitStatus(const RenderOptions&)>& draw,
                 Console& console) {
    if (const std::string problem = problemOf(options); !problem.empty()) {
        console.write(usageMessage("render", problem));
        return kWrongUsage;
    }
    const EndingSignals signals;
    FileWatch files(options.inputs);
    std::vector<std::size_t> changed(options.inputs.size());
    for (std::size_t i = 0; i < changed.size(); ++i) changed[i] = i;
    while (!changed.empty()) {
        const RenderOptions now = optionsFor(options, changed);
        const auto start = Clock::now();
        const ExitStatus status = draw(now);
        if (status == kWrongUsage) return status;
        console.write(resultLine(now, status, Clock::now() - start));
        changed = files.wait(signals.before());
    }
    return kDone;
}

}  // namespace VEXA::Cli
