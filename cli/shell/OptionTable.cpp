#include "cli/shell/OptionTable.h"

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include "cli/Commands.h"

namespace VEXA::Cli {
namespace {

OptionEntry entryOf(const CLI::Option& option) {
    OptionEntry entry;
    for (const std::string& name : option.get_snames()) entry.names.push_back("-" + name);
    for (const std::string& name : option.get_lnames()) entry.names.push_back("--" + name);
    const bool isFlag = option.get_expected_max() == 0;
    if (!isFlag) entry.value = option.get_type_name();
    if (!isFlag && entry.value.empty()) entry.value = option.get_name();
    entry.purpose = option.get_description();
    entry.repeats = option.get_positional() && option.get_items_expected_max() > 1;
    return entry;
}

void addEntries(const CLI::App& app, std::vector<OptionEntry>& options, std::vector<OptionEntry>& positionals) {
    for (const CLI::Option* const option : app.get_options())
        (option->get_positional() ? positionals : options).push_back(entryOf(*option));
}

}  // namespace

std::vector<std::string> OptionEntry::choices() const {
    std::vector<std::string> words;
    if (value.find('|') == value.npos) return words;
    for (std::size_t begin = 0; begin <= value.size();) {
        const std::size_t end = std::min(value.find('|', begin), value.size());
        words.push_back(value.substr(begin, end - begin));
        begin = end + 1;
    }
    return words;
}

OptionTable makeOptionTable() {
    CLI::App program(kProgramPurpose, "vexa");
    addProgramOptions(program);
    OptionTable table{kProgramPurpose, {}, {}};
    std::vector<OptionEntry> none;
    addEntries(program, table.options, none);
    CommandLine line;  // where the options would go
    for (const Command& command : commands()) {
        CLI::App& app = *program.add_subcommand(std::string(command.name), command.purpose);
        command.addOptions(app, line);
        CommandEntry& entry = table.commands.emplace_back();
        entry.name = command.name;
        entry.purpose = command.purpose;
        entry.details = app.get_footer();
        addEntries(app, entry.options, entry.positionals);
    }
    return table;
}

}  // namespace VEXA::Cli
