#include "command_line/Command.h"

#include "command_line/commands.h"

#include <algorithm>

namespace firecheck {

namespace {

constexpr std::size_t kWidestLine = 88;

const CommandOption kRules{"rules", "FILE"};
const CommandOption kOutput{"output", "FILE"};

CommandOption format(const char* choice) {
    return {"format", choice};
}

std::string usage(const Command& command) {
    std::string text;
    std::string line = std::string("  firecheck ") + command.name;
    const auto append = [&](const std::string& word) {
        if (line.size() + 1 + word.size() > kWidestLine) {
            text += line + "\n";
            line = std::string(7, ' ');
        }
        line += " " + word;
    };
    if (*command.arguments)
        append(command.arguments);
    for (const CommandOption& option : command.options)
        append("[--" + std::string(option.name) + (*option.value ? " " : "") + option.value + "]");
    return text + line + "\n";
}

std::string explanation(const Command& command) {
    std::string text = "      ";
    for (const char* character = command.explanation; *character; ++character)
        text += *character == '\n' ? "\n      " : std::string(1, *character);
    return text + "\n";
}

} // namespace

const CommandOption* Command::option(const std::string& optionName) const {
    const auto found = std::find_if(options.begin(), options.end(), [&](const CommandOption& candidate) {
        return candidate.name == optionName;
    });
    return found == options.end() ? nullptr : &*found;
}

const std::vector<Command>& commands() {
    static const std::vector<Command> table = {
        {"check",
         "SITE...",
         {kRules,
          format("text|json|csv|html"),
          kOutput,
          {"accept", "FILE"},
          {"write-accept", "FILE"},
          {"profile", ""}},
         "Checks each site file and reports what breaks a rule. Violations that the file of\n"
         "--accept lists with a reason count apart; --write-accept writes such a file for what\n"
         "is present. --profile tells the time of each rule, to standard error.",
         checkCommand},
        {"plan", "SITE", {kRules, kOutput}, "Draws the site with what breaks a rule, as SVG.", planCommand},
        {"show-rules",
         "[FILE]",
         {format("text|json"), kOutput},
         "Shows the rules of a rule file as the checker holds them.",
         showRulesCommand},
        {"list-rules",
         "",
         {format("text|json|markdown"), kOutput},
         "Lists the rule names that mean something, and what each of them judges.",
         listRulesCommand},
        {"lint-rules",
         "[FILE]",
         {format("text|json"), kOutput},
         "Finds what the checker passes over in silence in a rule file.",
         lintRulesCommand},
        {"site-schema",
         "",
         {format("json|markdown"), kOutput},
         "Writes the JSON Schema of site files, or the list of their classes and keys.",
         siteSchemaCommand},
    };
    return table;
}

const Command* findCommand(const std::string& name) {
    const auto found = std::find_if(commands().begin(), commands().end(),
                                    [&](const Command& command) { return command.name == name; });
    return found == commands().end() ? nullptr : &*found;
}

std::string helpText() {
    std::string text = "firecheck - checks construction-site layouts against fire-safety rules\n\n";
    for (const Command& command : commands())
        text += usage(command) + explanation(command);
    return text + R"(  firecheck --help | --version

Results go to standard output or the file named by --output, which is replaced only
when every input could be used; everything else goes to standard error. Without
--rules (or FILE) the rule file that comes with the checker is used.

Exit status: 0 nothing found, 1 violations or findings, 2 wrong usage or input.
)";
}

} // namespace firecheck
