#pragma once

#include <string>
#include <vector>

namespace VEXA::Cli {

/// An option, or a positional argument, as the help shows it.
struct OptionEntry {
    std::vector<std::string> names;  ///< "-o", "--output"; none for a positional argument
    std::string value;               ///< "FILE", or the words that it may be, "svg|png"; empty for a flag
    std::string purpose;
    bool repeats = false;  ///< whether several values may follow each other

    /// The words of which the value must be one.
    std::vector<std::string> choices() const;
};

struct CommandEntry {
    std::string name;
    std::string purpose;
    std::string details;  ///< formats, examples and the like, in lines
    std::vector<OptionEntry> options;
    std::vector<OptionEntry> positionals;
};

/// The whole command line of the program, read off the very objects that read it and write its help.
struct OptionTable {
    std::string purpose;
    std::vector<OptionEntry> options;  ///< of the program itself
    std::vector<CommandEntry> commands;
};

OptionTable makeOptionTable();

}  // namespace VEXA::Cli
