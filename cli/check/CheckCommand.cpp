#include "cli/check/CheckCommand.h"

#include <new>
#include <thread>

#include "cli/CallersFonts.h"
#include "cli/JobRunner.h"
#include "cli/Messages.h"
#include "cli/RenderOptions.h"
#include "cli/check/DiagnosticText.h"
#include "vexa/check/DocumentCheck.h"
#include "vexa/support/core/StringTable.h"

namespace VEXA::Cli {
namespace {

constexpr int kNoMemory = 35100;

CheckReport failure(int code, const String& message) { return {{{Severity::Error, code, message, {}}}}; }

CheckReport checkFile(const std::string& input) {
    try {
        return DocumentCheck::run(openInput(input));
    } catch (const Exception& error) {
        return failure(error.getCode(), error.getMessage());
    } catch (const std::bad_alloc&) {
        return failure(kNoMemory, messageText(kNoMemory, {}));
    } catch (const std::exception& error) {
        return failure(0, String(error.what()));
    }
}

RenderResult checkDocument(const std::string& input, bool isStrict, bool isJson) {
    const CheckReport report = checkFile(input);
    const std::string file = inputName(input);
    RenderResult result;
    result.failed = report.count(Severity::Error) > 0 || (isStrict && report.count(Severity::Warning) > 0);
    for (const LogRecord& problem : report.problems) {
        result.messages += isJson ? jsonLine(file, problem)
                                  : messageLine(file, problem.place, problem.severity, problem.message.toUtf8());
    }
    return result;
}

std::string problemOf(const CheckOptions& options) {
    if (options.inputs.empty()) return "no document to check; name a file, or - for standard input";
    if (options.diagnostics != "text" && options.diagnostics != "json")
        return "--diagnostics \"" + options.diagnostics + "\" is not text or json";
    return {};
}

ExitStatus refuse(const std::string& problem, Console& console) {
    console.write(usageMessage("check", problem));
    return kWrongUsage;
}

unsigned threadsFor(const CheckOptions& options) {
    if (options.inputs.size() == 1) return 1;
    return options.jobs > 0 ? options.jobs : std::thread::hardware_concurrency();
}

}  // namespace

ExitStatus check(const CheckOptions& options, IO::Stream& output, Console& console) {
    if (const std::string problem = problemOf(options); !problem.empty()) return refuse(problem, console);
    std::shared_ptr<FontService> fonts;
    if (!options.fontDirectories.empty()) {
        fonts = callersFonts(options.fontDirectories);
        if (fonts == nullptr) return refuse("--font-dir is not for this vexa, which was built without fonts", console);
    }
    const FontServiceScope scope(std::move(fonts));
    const bool isJson = options.diagnostics == "json";
    ExitStatus status = kDone;
    const auto report = [&](std::size_t, const RenderResult& result) {
        if (result.failed) status = kFailed;
        if (!isJson) return console.write(result.messages);
        output.write(result.messages.data(), result.messages.size());
    };
    runJobs(options.inputs.size(), threadsFor(options),
            [&](std::size_t index) { return checkDocument(options.inputs[index], options.isStrict, isJson); },
            {report, [](std::size_t) {}});
    return status;
}

}  // namespace VEXA::Cli
