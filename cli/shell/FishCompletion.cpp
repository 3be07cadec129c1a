#include "cli/shell/Completion.h"
#include "cli/shell/ShellText.h"

namespace VEXA::Cli {
namespace {

std::string quotedForFish(std::string_view text) { return quoted(text, "\\'"); }

std::string valueOf(const OptionEntry& option) {
    if (option.value.empty()) return "";
    const auto choices = option.choices();
    if (!choices.empty()) return " -x -a " + quotedForFish(joined(choices));
    if (option.value == "DIR") return " -x -a '(__fish_complete_directories)'";
    return option.value == "FILE" ? " -r -F" : " -x";
}

std::string lineOf(const OptionEntry& option, const std::string& condition) {
    std::string line = "complete -c vexa -n " + condition;
    for (const std::string& name : option.names) {
        const bool isLong = name.starts_with("--");
        line += (isLong ? " -l " : " -s ") + name.substr(isLong ? 2 : 1);
    }
    return line + valueOf(option) + " -d " + quotedForFish(option.purpose) + '\n';
}

std::string linesOf(const CommandEntry& command) {
    const std::string seen = quotedForFish("__fish_seen_subcommand_from " + command.name);
    std::string text =
        "complete -c vexa -n __fish_use_subcommand -a " + command.name + " -d " + quotedForFish(command.purpose) + '\n';
    for (const OptionEntry& option : command.options) text += lineOf(option, seen);
    for (const OptionEntry& positional : command.positionals) {
        const auto choices = positional.choices();
        const std::string words = positional.value == "FILE" ? "(__fish_complete_suffix .xml)" : joined(choices);
        if (!words.empty()) text += "complete -c vexa -n " + seen + " -k -a " + quotedForFish(words) + '\n';
    }
    return text;
}

}  // namespace

std::string makeFishCompletion(const OptionTable& table) {
    std::string text =
        "# Completes the arguments of vexa in fish. Written by: vexa completion fish\n\ncomplete -c vexa -f\n";
    for (const OptionEntry& option : table.options) text += lineOf(option, "__fish_use_subcommand");
    for (const CommandEntry& command : table.commands) text += linesOf(command);
    return text;
}

}  // namespace VEXA::Cli
