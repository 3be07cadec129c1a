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
    RenderOptions renderOptions;
    FontsOptions fontsOptions;
    CLI::App app("Draws charts described in XML.", "vexa");
    app.set_version_flag("--version", "vexa " VEXA_VERSION, "Show the version");
    app.set_help_flag("-h,--help", "Show this help");
    app.require_subcommand(0, 1);
    app.footer(kFooter);
    CLI::App& render = *app.add_subcommand("render", "Draw chart documents as SVG, PNG, PDF or display lists");
    CLI::App& fonts = *app.add_subcommand("fonts", "Tell which fonts draw a text");
    // Setting up options takes as long as drawing some charts, so only the command that is typed gets its own.
    const std::string_view typed = count > 1 ? arguments[1] : "";
    if (typed == "render") addRenderOptions(render, renderOptions);
    if (typed == "fonts") addFontsOptions(fonts, fontsOptions);
    try {
        app.parse(count, arguments);
    } catch (const CLI::ParseError& end) {
        return {{}, {}, answerTo(app, end)};
    }
    if (render.parsed()) return {std::move(renderOptions), {}, {}};
    if (fonts.parsed()) return {{}, std::move(fontsOptions), {}};
    return {{}, {}, {app.help(), kWrongUsage}};
}

}  // namespace VEXA::Cli
