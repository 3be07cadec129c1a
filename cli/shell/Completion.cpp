#include "cli/shell/Completion.h"

#include "cli/Messages.h"

namespace VEXA::Cli {

Answer completeFor(const CompletionOptions& options) {
    const OptionTable table = makeOptionTable();
    if (options.shell == "bash") return {makeBashCompletion(table)};
    if (options.shell == "zsh") return {makeZshCompletion(table)};
    if (options.shell == "fish") return {makeFishCompletion(table)};
    const std::string problem =
        options.shell.empty() ? "no shell is named" : "the shell \"" + printable(options.shell) + "\" is unknown";
    return {"vexa completion: " + problem + "; write bash, zsh or fish\nvexa completion --help tells how.\n",
            kWrongUsage};
}

}  // namespace VEXA::Cli
