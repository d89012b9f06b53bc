#include "InputError.h"
#include "command_line/Command.h"
#include "command_line/commands.h"
#include "text/nearest_name.h"

namespace firecheck {

std::string suggestionText(const std::string& name, const std::vector<std::string>& known) {
    const auto nearest = nearestName(name, known);
    return nearest ? "Did you mean \"" + *nearest + "\"? " : std::string();
}

const Command& requiredCommand(const std::string& name) {
    if (const Command* known = findCommand(name))
        return *known;
    std::vector<std::string> names;
    for (const Command& command : commands())
        names.emplace_back(command.name);
    throw InputError((name.empty() ? "No command is given. " : "No such command: \"" + name + "\". ") +
                     suggestionText(name, names) + "Try \"firecheck --help\".");
}

} // namespace firecheck
