#include "cli/CommandLine.h"

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <algorithm>

#include "cli/Commands.h"
#include "cli/Messages.h"

namespace VEXA::Cli {
namespace {

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

}  // namespace

CommandLine parseCommandLine(int count, const char* const* arguments) {
    CommandLine line;
    CLI::App app(kProgramPurpose, "vexa");
    app.require_subcommand(0, 1);
    // Setting up commands takes as long as drawing some charts, so the one that is typed is set up alone.
    const std::string_view typed = count > 1 ? arguments[1] : "";
    const auto command = std::ranges::find(commands(), typed, &Command::name);
    const bool isKnown = command != commands().end();
    if (isKnown) {
        app.set_help_flag("-h,--help", "Show this help");
        command->addOptions(*app.add_subcommand(std::string(typed), command->purpose), line);
    } else {
        addProgramOptions(app);
        app.footer(kProgramFooter);
        for (const Command& each : commands()) app.add_subcommand(std::string(each.name), each.purpose);
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
