#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include "cli/CommandArguments.h"
#include "cli/OutputFormat.h"

namespace VEXA::Cli {
namespace {

constexpr const char* kFooter = R"(Formats:
  svg   a scalable picture with real text; what --out-dir and -o - write unless --to says otherwise
  png   pixels; --scale 2 for twice as many each way, --dpi 300 for print; transparent without --background
  pdf   pages to print, with text to search and copy; several documents to one FILE become its pages
  json  the display list: one drawing operation a line, to test, compare or replay

Examples:
  vexa render chart.xml -o chart.svg                 the format from the name
  vexa render - -o - --to json                       standard input to standard output
  vexa render charts/*.xml --out-dir out --jobs 4    many at once: out/NAME.svg for charts/NAME.xml
  vexa render may.xml june.xml -o report.pdf         a page for each, in this order
  vexa render chart.xml -o chart.png --dpi 300 --background white
  vexa render --watch chart.xml -o chart.svg         again and again, while one writes
  vexa render --strict chart.xml -o chart.svg        no picture rather than one with a warning

Messages go to standard error, one a line: FILE:LINE:COLUMN: warning: TEXT, or error. A file is
written whole or not at all; a document that fails leaves none, nor does a PDF that lacks a page.
With --strict a document with a warning fails. vexa check tells all problems of a document at once.

Exit status: 0 all is drawn, 1 a document failed (the others are drawn), 2 the command line is wrong.)";

/// An option whose value is kept as it was typed, an empty one included.
void addText(CLI::App& command, const char* name, std::optional<std::string>& value, const char* what,
             const char* type) {
    command
        .add_option_function<std::string>(
            name, [&value](const std::string& text) { value = text; }, what)
        ->type_name(type);
}

void addPictureOptions(CLI::App& command, RenderOptions& options) {
    addText(command, "--scale", options.scale, "Pixels of a PNG to one px of the chart; else 1", "S");
    addText(command, "--dpi", options.dpi, "Pixels of a PNG to the inch, told in the file; sets the scale to D/96",
            "D");
    addText(command, "--background", options.background, "Colour below a PNG or PDF; else nothing", "COLOR");
    command.add_option("--font-dir", options.fontDirectories, "Directory of fonts to use first; may be repeated")
        ->type_name("DIR")
        ->allow_extra_args(false);  // what follows is a document
}

}  // namespace

void addRenderOptions(CLI::App& command, RenderOptions& options) {
    CLI::Validator jobs = CLI::Range(1U, kMaxJobs);
    jobs.description("");  // the usage line has no room for it
    command.add_option("FILE", options.inputs, "Chart documents; - is standard input")->type_name("");
    command.add_option("-o,--output", options.output, "File to draw to; - is standard output")->type_name("FILE");
    command.add_option("--out-dir", options.outputDirectory, "Directory to draw to, made if missing")->type_name("DIR");
    command.add_option("--to", options.format, "Format; else the name of the output tells")
        ->type_name(formatNames("|"));
    command.add_option("-j,--jobs", options.jobs, "Files drawn at once; else as many as there are cores")
        ->check(jobs)
        ->type_name("N");
    command.add_flag("--strict", options.isStrict, "Fail for warnings as for errors: such a document gives no picture");
    command.add_flag("--watch", options.isWatching, "Draw again what changes, until Ctrl-C");
    addPictureOptions(command, options);
    command.footer(kFooter);
}

}  // namespace VEXA::Cli
