#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include "cli/CommandArguments.h"

namespace VEXA::Cli {
namespace {

constexpr const char* kFooter =
    R"(Prints what may be written in a chart document: every element, every attribute and the values that
it takes, with a note on each.

Formats:
  xsd       an XML Schema, for editors that complete and check while one writes
  markdown  the reference, to read

Examples:
  vexa schema > vexa.xsd
  xmllint --noout --schema vexa.xsd chart.xml        checks a chart without drawing it
  vexa schema --format markdown > reference.md

Exit status: 0 it is printed, 1 it could not be written, 2 the command line is wrong.)";

}  // namespace

void addSchemaOptions(CLI::App& command, SchemaOptions& options) {
    command.add_option("--format", options.format, "What to print; else xsd")->type_name("xsd|markdown");
    command.footer(kFooter);
}

}  // namespace VEXA::Cli
