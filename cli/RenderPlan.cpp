#include "cli/RenderPlan.h"

#include <filesystem>
#include <optional>

#include "cli/OutputGuard.h"
#include "cli/PictureArguments.h"

namespace VEXA::Cli {
namespace {

namespace fs = std::filesystem;

bool isStandardStream(const std::string& name) { return name == kStandardStream; }

std::string extensionWithoutDot(const std::string& path) {
    const std::string extension = fs::path(path).extension().string();
    return extension.empty() ? extension : extension.substr(1);
}

/// What is wrong with the choice of inputs and outputs, whatever the format.
std::string destinationProblem(const RenderOptions& options) {
    if (options.inputs.empty()) return "no document to draw; name a file, or - for standard input";
    if (options.output.empty() && options.outputDirectory.empty()) {
        return "nowhere to draw to; say -o FILE, -o - for standard output, or --out-dir DIR";
    }
    if (!options.output.empty() && !options.outputDirectory.empty()) return "-o and --out-dir exclude each other";
    if (options.outputDirectory.empty()) return {};
    for (const std::string& input : options.inputs) {
        if (isStandardStream(input)) return "standard input has no name to make a file name of; use -o FILE";
    }
    return {};
}

std::string formatProblem(const std::string& name, std::optional<OutputFormat> format, const RenderOptions& options) {
    if (!format && name.empty()) {
        return "the name \"" + options.output + "\" tells no format; add --to with one of " + formatNames();
    }
    if (!format) return "cannot write \"" + name + "\"; the formats are " + formatNames();
    if (!isBuiltIn(*format)) {
        return "cannot write \"" + name + "\": this vexa was built without PNG and PDF; the formats are " +
               formatNames();
    }
    return {};
}

/// The format that is asked for by name, else by the name of the output, else SVG; or a problem.
OutputFormat chooseFormat(const RenderOptions& options, std::string& problem) {
    std::string name = options.format;
    const bool namedByFile = !options.output.empty() && !isStandardStream(options.output);
    if (name.empty() && !namedByFile) return OutputFormat::Svg;
    if (name.empty()) name = extensionWithoutDot(options.output);
    const std::optional<OutputFormat> format = formatNamed(name);
    problem = formatProblem(name, format, options);
    return format.value_or(OutputFormat::Svg);
}

bool isOneFileForSeveral(const RenderOptions& options) { return options.inputs.size() > 1 && !options.output.empty(); }

std::string outputOf(const std::string& input, const RenderOptions& options, OutputFormat format) {
    if (options.outputDirectory.empty()) return options.output;
    fs::path name = fs::path(input).stem();
    name += "." + std::string(extensionOf(format));
    return (fs::path(options.outputDirectory) / name).string();
}

void addJobs(const RenderOptions& options, OutputFormat format, const PictureOptions& picture, RenderPlan& plan) {
    plan.jobs.reserve(options.inputs.size());
    for (const std::string& input : options.inputs) {
        plan.jobs.push_back({input, outputOf(input, options, format), format, picture, options.isStrict});
    }
}

}  // namespace

RenderPlan planRender(const RenderOptions& options) {
    RenderPlan plan;
    plan.problem = destinationProblem(options);
    if (!plan.problem.empty()) return plan;
    const OutputFormat format = chooseFormat(options, plan.problem);
    if (!plan.problem.empty()) return plan;
    plan.isJoined = isOneFileForSeveral(options);
    if (plan.isJoined && !joinsDocuments(format)) {
        plan.problem = "a file of " + std::string(extensionOf(format)) +
                       " holds one document; use --out-dir DIR for a file of each, or a PDF, which has pages";
        return plan;
    }
    const PictureOptions picture = readPictureOptions(options, format, plan.problem);
    if (!plan.problem.empty()) return plan;
    addJobs(options, format, picture, plan);
    if (!plan.isJoined) plan.problem = sameOutputProblem(plan.jobs);
    if (!plan.problem.empty()) return plan;
    plan.problem = overwriteProblem(plan.jobs);
    plan.status = kFailed;
    return plan;
}

}  // namespace VEXA::Cli
