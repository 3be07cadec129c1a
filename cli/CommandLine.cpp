#include "cli/CommandLine.h"

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include "cli/CommandArguments.h"
#include "cli/Messages.h"

namespace VEXA::Cli {
namespace {

constexpr const char* kFooter = R"(Start with
  vexa render chart.xml -o chart.svg
and read on with vexa render --help.)";

/// The answer to what ends the reading of the arguments early: a wish for help, or a mistake.
Answer answerTo(const CLI::App& app, const CLI::ParseError& end) {
    const auto chosen = app.get_subcommands();
    const CLI::App& command = chosen.empty() ? app : *chosen.front();
    const std::string name = chosen.empty() ? "vexa" : "vexa " + command.get_name();
    const bool isHelp = end.get_name() == "CallForHelp" || end.get_name() == "CallForAllHelp";
    if (isHelp) return {chosen.empty() ? app.help() : command.help("vexa"), kDone};
    if (end.get_name() == "CallForVersion") return {std::string(end.what()) + "\n", kDone};
    return {name + ": " + printable(end.what()) + "\n" + name + " --help tells how.\n", kWrongUsage};
}

struct Command {
    std::string_view name;
    const char* purpose;
    void (*addOptions)(CLI::App& command, CommandLine& line);
};

constexpr Command kCommands[] = {
    {"render", "Draw chart documents as SVG, PNG, PDF or display lists",
     [](CLI::App& command, CommandLine& line) { addRenderOptions(command, line.render.emplace()); }},
    {"check", "Tell all that is wrong with chart documents",
     [](CLI::App& command, CommandLine& line) { addCheckOptions(command, line.check.emplace()); }},
    {"fonts", "Tell which fonts draw a text",
     [](CLI::App& command, CommandLine& line) { addFontsOptions(command, line.fonts.emplace()); }},
    {"schema", "Print the XML schema of chart documents, or their reference",
     [](CLI::App& command, CommandLine& line) { addSchemaOptions(command, line.schema.emplace()); }},
};

}  // namespace

CommandLine parseCommandLine(int count, const char* const* arguments) {
    CommandLine line;
    CLI::App app("Draws charts described in XML.", "vexa");
    app.set_help_flag("-h,--help", "Show this help");
    app.require_subcommand(0, 1);
    // Setting up commands takes as long as drawing some charts, so the one that is typed is set up alone.
    const std::string_view typed = count > 1 ? arguments[1] : "";
    const auto* const command = std::ranges::find(kCommands, typed, &Command::name);
    const bool isKnown = command != std::end(kCommands);
    if (isKnown) {
        command->addOptions(*app.add_subcommand(std::string(typed), command->purpose), line);
    } else {
        app.set_version_flag("--version", "vexa " VEXA_VERSION, "Show the version");
        app.footer(kFooter);
        for (const Command& each : kCommands) app.add_subcommand(std::string(each.name), each.purpose);
    }
    try {
        app.parse(count, arguments);
    } catch (const CLI::ParseError& end) {
        line = {};
        line.answer = answerTo(app, end);
        return line;
    }
    if (!isKnown) line.answer = {app.help(), kWrongUsage};
    return line;
}

}  // namespace VEXA::Cli
