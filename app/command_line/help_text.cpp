#include "command_line/help_text.h"

#include <algorithm>

namespace firecheck {

namespace {

constexpr std::size_t kWidestLine = 88;

/// Words after `start`, in lines of which all but the first are indented.
std::string filled(std::string start, const std::vector<std::string>& words, std::size_t indent) {
    std::string text;
    std::string line = std::move(start);
    bool isEmpty = true;
    for (const std::string& word : words) {
        if (!isEmpty && line.size() + 1 + word.size() > kWidestLine) {
            text += line + "\n";
            line = std::string(indent, ' ') + word;
        } else {
            line += (isEmpty ? "" : " ") + word;
        }
        isEmpty = false;
    }
    return text + line + "\n";
}

std::vector<std::string> wordsOf(const std::string& text) {
    std::vector<std::string> words{""};
    for (const char character : text)
        if (character == ' ')
            words.emplace_back();
        else
            words.back() += character;
    return words;
}

std::string paragraph(const std::string& text, std::size_t indent) {
    return filled(std::string(indent, ' '), wordsOf(text), indent);
}

std::string withValue(const CommandOption& option) {
    return "--" + std::string(option.name) + (*option.value ? " " : "") + option.value;
}

std::string usage(const Command& command) {
    std::vector<std::string> words{command.name};
    if (*command.arguments)
        words.emplace_back(command.arguments);
    for (const CommandOption& option : command.options)
        words.push_back("[" + withValue(option) + "]");
    return filled("  firecheck ", words, 8);
}

} // namespace

std::string helpText() {
    std::string text = "firecheck - checks construction-site layouts against fire-safety rules\n\n";
    std::size_t widest = 0;
    for (const Command& command : commands())
        widest = std::max(widest, std::string(command.name).size());
    for (const Command& command : commands()) {
        const std::string name = command.name;
        text += filled("  " + name + std::string(widest + 2 - name.size(), ' '), wordsOf(command.summary),
                       widest + 4);
    }
    return text + R"(
"firecheck help COMMAND" tells its options. "-" as a file stands for standard input.

Results go to standard output or to the file of --output; everything else goes to
standard error.

Exit status: 0 nothing found, 1 violations or findings, 2 wrong usage or input.
)";
}

std::string helpText(const Command& command) {
    std::string text = usage(command) + "\n" + paragraph(command.summary, 2);
    if (*command.details)
        text += paragraph(command.details, 2);
    for (const CommandOption& option : command.options) {
        const std::string letter = option.letter ? std::string("-") + option.letter + ", " : std::string();
        text += "\n  " + letter + withValue(option) + "\n" + paragraph(option.help, 6);
    }
    return text;
}

} // namespace firecheck
