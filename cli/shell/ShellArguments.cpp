#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include "cli/CommandArguments.h"

namespace VEXA::Cli {

void addCompletionOptions(CLI::App& command, CompletionOptions& options) {
    command.add_option("SHELL", options.shell, "The shell: bash, zsh or fish")->type_name("bash|zsh|fish");
    command.footer(R"(Examples:
  source <(vexa completion bash)                     in ~/.bashrc
  vexa completion zsh > ~/.zfunc/_vexa               in a directory of $fpath
  vexa completion fish > ~/.config/fish/completions/vexa.fish

An installed vexa has brought them along.)");
}

void addManOptions(CLI::App& command, ManOptions&) {
    command.footer(R"(Examples:
  vexa man | man -l -                                read it
  vexa man > ~/.local/share/man/man1/vexa.1          keep it

An installed vexa has brought it along: man vexa.)");
}

}  // namespace VEXA::Cli
