#pragma once

#include <string>
#include <vector>

namespace firecheck {

class Options;

struct CommandOption {
    const char* name;  ///< without the dashes
    const char* value; ///< what the help shows for it, "a|b" for a choice; empty for a flag
    const char* help;  ///< a sentence or two, without line breaks
    char letter = 0;   ///< a short form, 'q' for "-q"; 0 for none
};

/// One command of the program: all that parsing, help, manual page and completion have to know of it.
struct Command {
    const char* name;
    const char* arguments; ///< as the help shows them; empty for none
    std::vector<CommandOption> options;
    const char* summary; ///< one sentence
    const char* details; ///< more of them, without line breaks; empty for none
    int (*run)(const Options& options);
    bool readsFiles = true; ///< its arguments are files, not names

    /// Null when the command does not have it.
    const CommandOption* option(const std::string& optionName) const;
};

/// In the order of the help.
const std::vector<Command>& commands();

/// Null when there is none of that name.
const Command* findCommand(const std::string& name);

} // namespace firecheck
