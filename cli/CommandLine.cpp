#include "cli/CommandLine.h"

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <algorithm>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Commands.h"
#include "cli/Messages.h"
#include "vexa/support/core/NearestName.h"

namespace VEXA::Cli {
namespace {

/// `there is no option "--scal"; did you mean "--scale"?`
std::string noSuch(std::string_view kind, std::string_view word, std::span<const std::string_view> known) {
    const std::string_view near = nearestName(word, known);
    return "there is no " + std::string(kind) + " \"" + std::string(word) + "\"" +
           (near.empty() ? std::string() : "; did you mean \"" + std::string(near) + "\"?");
}

/// What nobody has set up a command for. A document in its place most likely wants to be drawn.
Answer noSuchCommand(std::string_view typed) {
    std::vector<std::string_view> names;
    for (const Command& each : commands()) names.push_back(each.name);
    const bool isFile = typed.find_first_of("./") != std::string_view::npos;
    const std::string advice = isFile ? "; vexa render FILE -o PICTURE draws a document" : "";
    return {"vexa: " + printable(noSuch("command", typed, names) + advice) + "\nvexa --help tells how.\n", kWrongUsage};
}

std::string noSuchOption(const CLI::App& command, const std::string& typed) {
    std::vector<std::string> names;
    for (const CLI::Option* const option : command.get_options()) {
        for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
    }
    const std::string word = typed.substr(0, typed.find('='));
    return noSuch("option", word, std::vector<std::string_view>(names.begin(), names.end()));
}

/// The answer to what ends the reading of the arguments early: a wish for help, or a mistake.
Answer answerTo(const CLI::App& app, const CLI::ParseError& end) {
    const auto chosen = app.get_subcommands();
    const CLI::App& command = chosen.empty() ? app : *chosen.front();
    const std::string name = chosen.empty() ? "vexa" : "vexa " + command.get_name();
    const bool isHelp = end.get_name() == "CallForHelp" || end.get_name() == "CallForAllHelp";
    if (isHelp) return {chosen.empty() ? app.help() : command.help("vexa"), kDone};
    if (end.get_name() == "CallForVersion") return {std::string(end.what()) + "\n", kDone};
    const auto unexpected = app.remaining(true);
    const bool isOption = end.get_exit_code() == static_cast<int>(CLI::ExitCodes::ExtrasError) &&
                          unexpected.size() == 1 && unexpected[0].starts_with('-');
    const std::string problem = isOption ? noSuchOption(command, unexpected[0]) : end.what();
    return {name + ": " + printable(problem) + "\n" + name + " --help tells how.\n", kWrongUsage};
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
    if (!isKnown && !typed.empty() && typed.front() != '-') {
        line.answer = noSuchCommand(typed);
        return line;
    }
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
