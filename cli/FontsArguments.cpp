#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include "cli/CommandArguments.h"

namespace VEXA::Cli {
namespace {

constexpr const char* kFooter =
    R"(Tells which font a family stands for and, for each TEXT, how wide it is, which fonts draw which
part of it, and the characters that no font has. A font is told by its name and its file; one that
is built in needs no file.

Examples:
  vexa fonts                                         the font of a document that asks for none
  vexa fonts --family "Georgia, serif" --bold        the first of these names that there is
  vexa fonts --size 14 "Total" "総計" "مجموع"        what draws these captions
  vexa fonts --font-dir ./fonts --family Lato Total  with fonts of your own

Exit status: 0 the fonts are told, missing characters or not, 1 a directory of fonts cannot be
used, 2 the command line is wrong.)";

}  // namespace

void addFontsOptions(CLI::App& command, FontsOptions& options) {
    command.add_option("TEXT", options.texts, "Texts to measure, in UTF-8")->type_name("");
    command.add_option("--family", options.family, "Names of fonts, separated by commas; else sans-serif")
        ->type_name("LIST");
    command.add_flag("--bold", options.isBold, "The bold face");
    command.add_flag("--italic", options.isItalic, "The italic face");
    command.add_option("--size", options.size, "Size in px; else 12")->type_name("PX");
    command.add_option("--font-dir", options.directories, "Directory of fonts to use first; may be repeated")
        ->type_name("DIR")
        ->allow_extra_args(false);  // what follows is a text
    command.footer(kFooter);
}

}  // namespace VEXA::Cli
