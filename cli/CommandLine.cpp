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

}  // namespace

CommandLine parseCommandLine(int count, const char* const* arguments) {
    CommandLine line;
    RenderOptions renderOptions;
    FontsOptions fontsOptions;
    SchemaOptions schemaOptions;
    CLI::App app("Draws charts described in XML.", "vexa");
    app.set_version_flag("--version", "vexa " VEXA_VERSION, "Show the version");
    app.set_help_flag("-h,--help", "Show this help");
    app.require_subcommand(0, 1);
    app.footer(kFooter);
    // Setting up commands takes as long as drawing some charts, so the one that is typed is set up alone, and only it
    // gets its options.
    const std::string_view typed = count > 1 ? arguments[1] : "";
    const bool isKnown = typed == "render" || typed == "fonts" || typed == "schema";
    const auto add = [&](const char* name, const char* what) -> CLI::App* {
        return !isKnown || typed == name ? app.add_subcommand(name, what) : nullptr;
    };
    CLI::App* const render = add("render", "Draw chart documents as SVG, PNG, PDF or display lists");
    CLI::App* const fonts = add("fonts", "Tell which fonts draw a text");
    CLI::App* const schema = add("schema", "Print the XML schema of chart documents, or their reference");
    if (typed == "render") addRenderOptions(*render, renderOptions);
    if (typed == "fonts") addFontsOptions(*fonts, fontsOptions);
    if (typed == "schema") addSchemaOptions(*schema, schemaOptions);
    try {
        app.parse(count, arguments);
    } catch (const CLI::ParseError& end) {
        line.answer = answerTo(app, end);
        return line;
    }
    const auto isParsed = [](const CLI::App* command) { return command != nullptr && command->parsed(); };
    if (isParsed(render)) {
        line.render = std::move(renderOptions);
    } else if (isParsed(fonts)) {
        line.fonts = std::move(fontsOptions);
    } else if (isParsed(schema)) {
        line.schema = std::move(schemaOptions);
    } else {
        line.answer = {app.help(), kWrongUsage};
    }
    return line;
}

}  // namespace VEXA::Cli
