#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include "cli/CommandArguments.h"

namespace VEXA::Cli {
namespace {

constexpr const char* kFooter =
    R"(Reads each document, lays it out, draws nothing, and tells all that is wrong with it in one go,
by line and column:
  error     render fails: a value that cannot be read, an axis that is missing
  warning   render leaves something out or draws it otherwise: an unknown name, a caption without room
  hint      render does as it is told, which will hardly look as it was meant

Examples:
  vexa check chart.xml                               one line for each problem, on standard error
  vexa check --strict charts/*.xml                   as a test: warnings fail, too; hints never do
  vexa check --diagnostics json - <chart.xml         for an editor: JSON lines on standard output

With --diagnostics json each problem is an object on a line of its own, with "file", "line",
"column", "severity", "number" and "message"; one that concerns a whole file has no line and column.

Exit status: 0 no document has an error, 1 one has (with --strict: or a warning), 2 the command
line is wrong.)";

}  // namespace

void addCheckOptions(CLI::App& command, CheckOptions& options) {
    CLI::Validator jobs = CLI::Range(1U, kMaxJobs);
    jobs.description("");  // the usage line has no room for it
    command.add_option("FILE", options.inputs, "Chart documents; - is standard input")->type_name("");
    command.add_flag("--strict", options.isStrict, "Fail for warnings as for errors");
    command.add_option("--diagnostics", options.diagnostics, "How problems are told; else text")
        ->type_name("text|json");
    command.add_option("-j,--jobs", options.jobs, "Files checked at once; else as many as there are cores")
        ->check(jobs)
        ->type_name("N");
    command.add_option("--font-dir", options.fontDirectories, "Directory of fonts to use first; may be repeated")
        ->type_name("DIR")
        ->allow_extra_args(false);  // what follows is a document
    command.footer(kFooter);
}

}  // namespace VEXA::Cli
