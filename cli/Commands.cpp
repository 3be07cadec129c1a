#include "cli/Commands.h"

#include "cli/CommandArguments.h"

namespace VEXA::Cli {

std::span<const Command> commands() {
    static constexpr Command all[] = {
        {"render", "Draw chart documents as SVG, PNG, PDF or display lists",
         [](CLI::App& command, CommandLine& line) { addRenderOptions(command, line.render.emplace()); }},
        {"check", "Tell all that is wrong with chart documents",
         [](CLI::App& command, CommandLine& line) { addCheckOptions(command, line.check.emplace()); }},
        {"fonts", "Tell which fonts draw a text",
         [](CLI::App& command, CommandLine& line) { addFontsOptions(command, line.fonts.emplace()); }},
        {"schema", "Print the XML schema of chart documents, or their reference",
         [](CLI::App& command, CommandLine& line) { addSchemaOptions(command, line.schema.emplace()); }},
        {"completion", "Print what makes a shell complete the arguments of vexa",
         [](CLI::App& command, CommandLine& line) { addCompletionOptions(command, line.completion.emplace()); }},
        {"man", "Print the manual page",
         [](CLI::App& command, CommandLine& line) { addManOptions(command, line.man.emplace()); }},
    };
    return all;
}

void addProgramOptions(CLI::App& program) {
    program.set_help_flag("-h,--help", "Show this help");
    program.set_version_flag("--version", "vexa " VEXA_VERSION, "Show the version");
}

}  // namespace VEXA::Cli
