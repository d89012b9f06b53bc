#include "rules_page/markdown.h"

#include <cctype>

namespace firecheck {

std::string replacedAll(std::string text, const std::string& old, const std::string& with) {
    for (auto at = text.find(old); at != std::string::npos; at = text.find(old, at + with.size()))
        text.replace(at, old.size(), with);
    return text;
}

std::string markdownText(const std::string& text) {
    std::string result;
    for (const char character : text) {
        if (std::string("\\`*_|<[").find(character) != std::string::npos)
            result += '\\';
        result += character;
    }
    return result;
}

std::string codeText(const std::string& text) {
    return "`" + text + "`";
}

std::string tableLine(const std::vector<std::string>& cells) {
    std::string line = "|";
    for (const std::string& cell : cells)
        line += " " + cell + " |";
    return line + "\n";
}

std::string tableHead(const std::vector<std::string>& titles) {
    std::string line = "|";
    for (std::size_t i = 0; i < titles.size(); ++i)
        line += "---|";
    return tableLine(titles) + line + "\n";
}

std::string anchorOf(const std::string& heading) {
    std::string anchor;
    for (const char character : heading) {
        const auto byte = static_cast<unsigned char>(character);
        if (character == ' ')
            anchor += '-';
        else if (std::isalnum(byte) || character == '-' || character == '_')
            anchor += static_cast<char>(std::tolower(byte));
    }
    return anchor;
}

} // namespace firecheck
