#pragma once

#include <string>
#include <vector>

namespace firecheck {

std::string replacedAll(std::string text, const std::string& old, const std::string& with);

/// `text` with the characters escaped that Markdown would take for marks, in tables too.
std::string markdownText(const std::string& text);

std::string codeText(const std::string& text);

/// A line of a table.
std::string tableLine(const std::vector<std::string>& cells);

/// The head of a table and the line below it.
std::string tableHead(const std::vector<std::string>& titles);

/// The anchor that a heading gets.
std::string anchorOf(const std::string& heading);

} // namespace firecheck
