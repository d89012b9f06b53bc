#pragma once

#include <string>

namespace firecheck {

/// A string of a DXF file with its escapes resolved: "\U+5B8B" and "\M+5CBCE" are characters.
std::string withoutEscapes(const std::string& utf8);

/// What a TEXT shows: without "%%u" and the like, "%%c" as a diameter sign.
std::string shownText(const std::string& raw);

/// What an MTEXT shows, on one line: without its formatting codes, paragraphs set apart by a blank.
std::string shownParagraphs(const std::string& raw);

} // namespace firecheck
