#pragma once

#include <optional>
#include <string>

namespace firecheck {

/// A file of the page, as it is built into the program.
struct PageFile {
    std::string content;
    std::string mediaType;
};

/// By its address below that of the page: "" is the page itself, "style.css", "script/plan.js",
/// "words.json". Nothing for any other: no file of the computer is ever looked for.
std::optional<PageFile> pageFile(const std::string& address);

} // namespace firecheck
