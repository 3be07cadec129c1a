#include "cli/shell/Completion.h"
#include "cli/shell/ShellText.h"

namespace VEXA::Cli {
namespace {

/// Within a specification of _arguments these have a meaning.
std::string escaped(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c == ':' || c == '[' || c == ']' || c == '\\') result += '\\';
        result += c;
    }
    return result;
}

std::string actionFor(const OptionEntry& entry) {
    const auto choices = entry.choices();
    if (!choices.empty()) return '(' + joined(choices) + ')';
    if (entry.value == "DIR") return "_files -/";
    if (entry.value != "FILE") return " ";
    return entry.names.empty() ? "_files -g \"*.xml\"" : "_files";
}

/// '(-o --output)'{-o,--output}'[purpose]:FILE:_files'
std::string specificationOf(const OptionEntry& option) {
    std::string tail = '[' + escaped(option.purpose) + ']';
    if (!option.value.empty()) tail += ':' + escaped(option.value) + ':' + actionFor(option);
    if (option.names.size() == 1) return quoted(option.names.front() + tail);
    return quoted('(' + joined(option.names) + ')') + '{' + joined(option.names, ",") + '}' + quoted(tail);
}

std::string caseOf(const CommandEntry& command) {
    std::string text = "        " + command.name + ")\n            _arguments -s";
    for (const OptionEntry& option : command.options) text += " \\\n                " + specificationOf(option);
    for (const OptionEntry& positional : command.positionals)
        text += " \\\n                " + quoted("*:" + escaped(positional.value) + ':' + actionFor(positional));
    return text + "\n            ;;\n";
}

}  // namespace

std::string makeZshCompletion(const OptionTable& table) {
    std::string names;
    std::string cases;
    std::string options;
    for (const OptionEntry& option : table.options) options += ' ' + specificationOf(option);
    for (const CommandEntry& command : table.commands) {
        names += "        " + quoted(command.name + ':' + escaped(command.purpose)) + '\n';
        cases += caseOf(command);
    }
    return "#compdef vexa\n# Completes the arguments of vexa in zsh. Written by: vexa completion zsh\n\n"
           "_vexa() {\n    local -a commands=(\n" +
           names + "    )\n    if ((CURRENT == 2)); then\n        _describe command commands\n        _arguments -s" +
           options + "\n        return\n    fi\n    shift words\n    ((CURRENT--))\n    case $words[1] in\n" + cases +
           "    esac\n}\n\nif [[ $zsh_eval_context[-1] == loadautofunc ]]; then\n    _vexa \"$@\"\nelse\n"
           "    compdef _vexa vexa\nfi\n";
}

}  // namespace VEXA::Cli
