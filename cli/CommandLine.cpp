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
    CheckOptions checkOptions;
    CLI::App app("Draws charts described in XML.", "vexa");
    app.set_help_flag("-h,--help", "Show this help");
    app.require_subcommand(0, 1);
    // Setting up commands takes as long as drawing some charts, so the one that is typed is set up alone.
    const std::string_view typed = count > 1 ? arguments[1] : "";
    const bool isKnown = typed == "render" || typed == "check" || typed == "fonts";
    const auto add = [&](const char* name, const char* purpose) {
        return isKnown && typed != name ? nullptr : app.add_subcommand(name, purpose);
    };
    if (!isKnown) {
        app.set_version_flag("--version", "vexa " VEXA_VERSION, "Show the version");
        app.footer(kFooter);
    }
    CLI::App* const render = add("render", "Draw chart documents as SVG, PNG, PDF or display lists");
    CLI::App* const check = add("check", "Tell all that is wrong with chart documents");
    CLI::App* const fonts = add("fonts", "Tell which fonts draw a text");
    if (typed == "render") addRenderOptions(*render, renderOptions);
    if (typed == "check") addCheckOptions(*check, checkOptions);
    if (typed == "fonts") addFontsOptions(*fonts, fontsOptions);
    try {
        app.parse(count, arguments);
    } catch (const CLI::ParseError& end) {
        return {{}, {}, {}, answerTo(app, end)};
    }
    const auto isTyped = [](const CLI::App* command) { return command != nullptr && command->parsed(); };
    if (isTyped(render)) return {std::move(renderOptions), {}, {}, {}};
    if (isTyped(fonts)) return {{}, std::move(fontsOptions), {}, {}};
    if (isTyped(check)) return {{}, {}, std::move(checkOptions), {}};
    return {{}, {}, {}, {app.help(), kWrongUsage}};
}

}  // namespace VEXA::Cli
