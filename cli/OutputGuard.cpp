#include "cli/OutputGuard.h"

#include <sys/stat.h>

#include <map>
#include <optional>
#include <unordered_map>
#include <utility>

#include "cli/RenderPlan.h"

namespace VEXA::Cli {
namespace {

/// Device and number of a file: equal exactly when two names mean the same file.
using FileIdentity = std::pair<dev_t, ino_t>;

std::optional<FileIdentity> identityOfFile(const std::string& name) {
    struct stat status = {};
    if (name == kStandardStream || ::stat(name.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    return FileIdentity(status.st_dev, status.st_ino);
}

std::string sameOutputProblem(const std::vector<RenderJob>& jobs) {
    std::unordered_map<std::string, const RenderJob*> writers;
    for (const RenderJob& job : jobs) {
        const auto [known, isNew] = writers.emplace(job.output, &job);
        if (isNew) continue;
        return "\"" + known->second->input + "\" and \"" + job.input + "\" would both be drawn to \"" + job.output +
               "\"";
    }
    return {};
}

std::string overwriteProblem(const std::vector<RenderJob>& jobs) {
    std::map<FileIdentity, const RenderJob*> readers;
    for (const RenderJob& job : jobs) {
        if (const auto identity = identityOfFile(job.input)) readers.emplace(*identity, &job);
    }
    for (const RenderJob& job : jobs) {
        const auto identity = identityOfFile(job.output);
        const auto reader = identity ? readers.find(*identity) : readers.end();
        if (reader == readers.end()) continue;
        return "the picture \"" + job.output + "\" would replace the document \"" + reader->second->input + "\"";
    }
    return {};
}

}  // namespace

std::string outputProblem(const std::vector<RenderJob>& jobs, bool isJoined) {
    std::string problem = isJoined ? std::string() : sameOutputProblem(jobs);
    return problem.empty() ? overwriteProblem(jobs) : problem;
}

}  // namespace VEXA::Cli
