#include "cli/shell/Completion.h"
#include "cli/shell/ShellText.h"

namespace VEXA::Cli {
namespace {

/// What completes a value or a positional argument: a list of words for compgen, or a call.
std::string replyFor(const OptionEntry& entry) {
    const auto choices = entry.choices();
    if (!choices.empty()) return "_vexa_words " + quoted(joined(choices));
    if (entry.value == "DIR") return "_vexa_files -d";
    if (entry.value != "FILE") return ":";
    return entry.names.empty() ? "_vexa_files -d; _vexa_files -f -X '!*.xml'" : "_vexa_files -f";
}

std::string casesOf(const CommandEntry& command) {
    std::string text;
    for (const OptionEntry& option : command.options) {
        if (option.value.empty()) continue;
        std::string pattern;
        for (const std::string& name : option.names)
            pattern += (pattern.empty() ? "" : "|") + quoted(command.name + ' ' + name);
        text += "        " + pattern + ") " + replyFor(option) + "; return ;;\n";
    }
    return text;
}

std::string operandsOf(const CommandEntry& command) {
    std::string calls;
    for (const OptionEntry& positional : command.positionals) calls += replyFor(positional) + "; ";
    return "        " + command.name + ") if [[ $cur == -* ]]; then _vexa_words " +
           quoted(joined(namesOf(command.options))) + "; else " + (calls.empty() ? ":; " : calls) + "fi ;;\n";
}

}  // namespace

std::string makeBashCompletion(const OptionTable& table) {
    std::vector<std::string> first = namesOf(table.options);
    std::string values;
    std::string operands;
    for (const CommandEntry& command : table.commands) {
        first.push_back(command.name);
        values += casesOf(command);
        operands += operandsOf(command);
    }
    return R"(# Completes the arguments of vexa in bash. Written by: vexa completion bash

_vexa_words() { mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -W "$1" -- "$cur"); }
_vexa_files() {
    compopt -o filenames 2>/dev/null
    mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen "$@" -- "$cur")
}

_vexa() {
    local cur=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    # --to=svg is three words
    if [[ $cur == = ]]; then
        cur=
    elif [[ $previous == = ]]; then
        previous=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    if ((COMP_CWORD == 1)); then
        _vexa_words )" +
           quoted(joined(first)) + R"(
        return
    fi
    case "${COMP_WORDS[1]} $previous" in
)" + values +
           R"(    esac
    case ${COMP_WORDS[1]} in
)" + operands +
           R"(    esac
} && complete -F _vexa vexa
)";
}

}  // namespace VEXA::Cli
