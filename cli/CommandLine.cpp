#include "cli/CommandLine.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include "cli/Messages.h"

namespace VEXA::Cli {
namespace {

constexpr unsigned kMaxJobs = 1024;

constexpr const char* kProgramFooter = R"(Start with
  vexa render chart.xml -o chart.svg
and read on with vexa render --help.)";

constexpr const char* kRenderFooter = R"(Formats:
  svg   a scalable picture with real text; what --out-dir and -o - write unless --to says otherwise
  json  the display list: one drawing operation a line, to test, compare or replay

Examples:
  vexa render chart.xml -o chart.svg                 the format from the name
  vexa render - -o - --to json                       standard input to standard output
  vexa render charts/*.xml --out-dir out --jobs 4    many at once: out/NAME.svg for charts/NAME.xml

Messages go to standard error, one a line: FILE:LINE:COLUMN: warning: TEXT, or error. A file is
written whole or not at all; a document that fails leaves none.

Exit status: 0 all is drawn, 1 a document failed (the others are drawn), 2 the command line is wrong.)";

void describeRender(CLI::App& command, RenderOptions& options) {
    CLI::Validator jobs = CLI::Range(1U, kMaxJobs);
    jobs.description("");  // the usage line has no room for it
    command.add_option("FILE", options.inputs, "Chart documents; - is standard input")->type_name("");
    command.add_option("-o,--output", options.output, "File to draw to; - is standard output")->type_name("FILE");
    command.add_option("--out-dir", options.outputDirectory, "Directory to draw to, made if missing")->type_name("DIR");
    command.add_option("--to", options.format, "Format; else the name of the output tells")->type_name("FORMAT");
    command.add_option("-j,--jobs", options.jobs, "Documents drawn at once; else as many as there are cores")
        ->check(jobs)
        ->type_name("N");
    command.footer(kRenderFooter);
}

/// The text for what ends the reading of the arguments early: a wish for help, or a mistake.
CommandLine answer(const CLI::App& app, const CLI::ParseError& end) {
    const auto chosen = app.get_subcommands();
    const CLI::App& command = chosen.empty() ? app : *chosen.front();
    const std::string name = chosen.empty() ? "vexa" : "vexa " + command.get_name();
    const bool isHelp = end.get_name() == "CallForHelp" || end.get_name() == "CallForAllHelp";
    if (isHelp) return {{}, chosen.empty() ? app.help() : command.help("vexa"), kDone};
    if (end.get_name() == "CallForVersion") return {{}, std::string(end.what()) + "\n", kDone};
    return {{}, name + ": " + printable(end.what()) + "\n" + name + " --help tells how.\n", kWrongUsage};
}

}  // namespace

CommandLine parseCommandLine(int count, const char* const* arguments) {
    RenderOptions options;
    CLI::App app("Draws charts described in XML.", "vexa");
    app.set_version_flag("--version", "vexa " VEXA_VERSION, "Show the version");
    app.set_help_flag("-h,--help", "Show this help");
    app.require_subcommand(0, 1);
    app.footer(kProgramFooter);
    describeRender(*app.add_subcommand("render", "Draw chart documents as SVG pictures or display lists"), options);
    try {
        app.parse(count, arguments);
    } catch (const CLI::ParseError& end) {
        return answer(app, end);
    }
    if (app.get_subcommands().empty()) return {{}, app.help(), kWrongUsage};
    return {std::move(options), {}, kDone};
}

}  // namespace VEXA::Cli
