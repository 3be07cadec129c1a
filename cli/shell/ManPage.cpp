#include "cli/shell/ManPage.h"

#include <cstdio>
#include <string_view>

#include "vexa/support/core/String.h"

namespace VEXA::Cli {
namespace {

/// Text as it stands: a hyphen that can be copied, no escapes, no requests at the start of a line, and characters
/// beyond ASCII by their numbers, since formatters differ in the encodings that they read.
std::string plain(std::string_view text) {
    std::string result;
    char32_t before = '\n';
    const String characters(text);
    for (const char32_t c : characters.view()) {
        if (before == '\n' && (c == '.' || c == '\'')) result += "\\&";
        if (c == '-') {
            result += "\\-";
        } else if (c == '\\') {
            result += "\\e";
        } else if (c < 0x80) {
            result += static_cast<char>(c);
        } else {
            char number[16];
            std::snprintf(number, sizeof(number), "\\[u%04X]", static_cast<unsigned>(c));
            result += number;
        }
        before = c;
    }
    return result;
}

std::string bold(std::string_view text) { return "\\fB" + plain(text) + "\\fR"; }
std::string italic(std::string_view text) { return "\\fI" + plain(text) + "\\fR"; }

/// "-o, --output FILE"
std::string headOf(const OptionEntry& option) {
    std::string head;
    for (const std::string& name : option.names) head += (head.empty() ? "" : ", ") + bold(name);
    const std::string blank = head.empty() || option.value.empty() ? "" : " ";
    return head + blank + (option.value.empty() ? "" : italic(option.value));
}

std::string paragraphOf(const OptionEntry& option) {
    return ".TP\n" + headOf(option) + '\n' + plain(option.purpose) + ".\n";
}

std::string synopsisOf(const CommandEntry& command) {
    std::string line = ".br\n" + bold("vexa " + command.name);
    if (!command.options.empty()) line += " [" + italic("OPTION") + "...]";
    for (const OptionEntry& positional : command.positionals)
        line += " [" + italic(positional.value) + (positional.repeats ? "...]" : "]");
    return line + '\n';
}

std::string sectionOf(const CommandEntry& command) {
    std::string text = ".SS " + bold("vexa " + command.name) + '\n' + plain(command.purpose) + ".\n";
    for (const OptionEntry& option : command.positionals) text += paragraphOf(option);
    for (const OptionEntry& option : command.options) text += paragraphOf(option);
    if (!command.details.empty()) text += ".PP\n.nf\n" + plain(command.details) + "\n.fi\n";
    return text;
}

}  // namespace

std::string makeManPage(const OptionTable& table) {
    std::string text = ".TH VEXA 1 \"\" \"vexa " VEXA_VERSION
                       "\" \"User Commands\"\n.SH NAME\nvexa \\- draw charts "
                       "described in XML\n.SH SYNOPSIS\n" +
                       bold("vexa --help") + '\n';
    for (const CommandEntry& command : table.commands) text += synopsisOf(command);
    text += ".SH DESCRIPTION\n" + plain(table.purpose) +
            "\nA document holds bar, line and area charts, pies, doughnuts and radar charts\n"
            "with titles and legends; the pictures are SVG, PNG, PDF, or a display list in JSON.\n.SH OPTIONS\n";
    for (const OptionEntry& option : table.options) text += paragraphOf(option);
    text += ".SH COMMANDS\n";
    for (const CommandEntry& command : table.commands) text += sectionOf(command);
    return text;
}

}  // namespace VEXA::Cli
