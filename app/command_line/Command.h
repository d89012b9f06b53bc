#pragma once

#include <string>
#include <vector>

namespace firecheck {

class Options;

struct CommandOption {
    const char* name;  ///< without the dashes
    const char* value; ///< what the help shows for it, "a|b" for a choice; empty for a flag
};

/// One command of the program: all that help and parsing have to know of it.
struct Command {
    const char* name;
    const char* arguments; ///< as the help shows them; empty for none
    std::vector<CommandOption> options;
    const char* explanation; ///< in lines of the help
    int (*run)(const Options& options);

    /// Null when the command does not have it.
    const CommandOption* option(const std::string& optionName) const;
};

/// In the order of the help.
const std::vector<Command>& commands();

/// Null when there is none of that name.
const Command* findCommand(const std::string& name);

/// The help of the program, made from the table.
std::string helpText();

} // namespace firecheck
