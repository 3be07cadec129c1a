#pragma once

#include <CLI/App.hpp>
#include <span>
#include <string_view>

#include "cli/CommandLine.h"

namespace VEXA::Cli {

/// One command of the program.
struct Command {
    std::string_view name;
    const char* purpose;
    /// Gives it its options; what is typed goes to the command's member of `line`, which is made for it.
    void (*addOptions)(CLI::App& command, CommandLine& line);
};

/// All of them, in the order of the help: what help, man page and completions are made from.
std::span<const Command> commands();

/// What the program is for, and how to begin.
inline constexpr const char* kProgramPurpose = "Draws charts described in XML.";
inline constexpr const char* kProgramFooter = R"(Start with
  vexa render chart.xml -o chart.svg
and read on with vexa render --help.)";

/// The options of the program itself.
void addProgramOptions(CLI::App& program);

}  // namespace VEXA::Cli
