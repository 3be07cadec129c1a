#include "cli/RenderPlan.h"

#include <filesystem>
#include <optional>

#include "cli/OutputGuard.h"

namespace VEXA::Cli {
namespace {

namespace fs = std::filesystem;

bool isStandardStream(const std::string& name) { return name == kStandardStream; }

std::string cannotWrite(const std::string& format) {
    return "cannot write \"" + format + "\"; the formats are " + formatNames();
}

std::string extensionWithoutDot(const std::string& path) {
    const std::string extension = fs::path(path).extension().string();
    return extension.empty() ? extension : extension.substr(1);
}

/// What is wrong with the choice of inputs and outputs, whatever the format.
std::string destinationProblem(const RenderOptions& options) {
    const bool many = options.inputs.size() > 1;
    if (options.inputs.empty()) return "no document to draw; name a file, or - for standard input";
    if (options.output.empty() && options.outputDirectory.empty()) {
        return "nowhere to draw to; say -o FILE, -o - for standard output, or --out-dir DIR";
    }
    if (!options.output.empty() && !options.outputDirectory.empty()) return "-o and --out-dir exclude each other";
    if (many && !options.output.empty()) return "-o takes a single document; use --out-dir DIR for several";
    if (options.outputDirectory.empty()) return {};
    for (const std::string& input : options.inputs) {
        if (isStandardStream(input)) return "standard input has no name to make a file name of; use -o FILE";
    }
    return {};
}

/// The format that is asked for by name, else by the name of the output, else SVG; or a problem.
std::optional<OutputFormat> chooseFormat(const RenderOptions& options, std::string& problem) {
    std::string name = options.format;
    const bool namedByFile = !options.output.empty() && !isStandardStream(options.output);
    if (name.empty() && !namedByFile) return OutputFormat::Svg;
    if (name.empty()) name = extensionWithoutDot(options.output);
    const std::optional<OutputFormat> format = formatNamed(name);
    if (!format && name.empty()) {
        problem = "the name \"" + options.output + "\" tells no format; add --to with one of " + formatNames();
    } else if (!format) {
        problem = cannotWrite(name);
    }
    return format;
}

std::string outputOf(const std::string& input, const RenderOptions& options, OutputFormat format) {
    if (options.outputDirectory.empty()) return options.output;
    fs::path name = fs::path(input).stem();
    name += "." + std::string(extensionOf(format));
    return (fs::path(options.outputDirectory) / name).string();
}

}  // namespace

RenderPlan planRender(const RenderOptions& options) {
    RenderPlan plan;
    plan.problem = destinationProblem(options);
    if (!plan.problem.empty()) return plan;
    const std::optional<OutputFormat> format = chooseFormat(options, plan.problem);
    if (!format) return plan;
    for (const std::string& input : options.inputs) {
        plan.jobs.push_back({input, outputOf(input, options, *format), *format});
    }
    plan.problem = outputProblem(plan.jobs);
    return plan;
}

}  // namespace VEXA::Cli
