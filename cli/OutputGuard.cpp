#include "cli/OutputGuard.h"

#include <sys/stat.h>
#include <unistd.h>

#include <map>
#include <optional>
#include <unordered_map>
#include <utility>

#include "cli/Messages.h"
#include "cli/RenderPlan.h"

namespace VEXA::Cli {
namespace {

/// Device and number of a file: equal exactly when two names mean the same file.
using FileIdentity = std::pair<dev_t, ino_t>;

/// Of a file with that name, or the one behind the stream that "-" means.
std::optional<FileIdentity> identityOf(const std::string& name, int stream) {
    struct stat status = {};
    const int failure = name == kStandardStream ? ::fstat(stream, &status) : ::stat(name.c_str(), &status);
    if (failure != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    return FileIdentity(status.st_dev, status.st_ino);
}

}  // namespace

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
        if (const auto identity = identityOf(job.input, STDIN_FILENO)) readers.emplace(*identity, &job);
    }
    for (const RenderJob& job : jobs) {
        const auto identity = identityOf(job.output, STDOUT_FILENO);
        const auto reader = identity ? readers.find(*identity) : readers.end();
        if (reader == readers.end()) continue;
        return "the picture \"" + outputName(job.output) + "\" would replace the document \"" +
               inputName(reader->second->input) + "\"; draw it to another file";
    }
    return {};
}

}  // namespace VEXA::Cli
