#pragma once

#include <string>

namespace firecheck {

/// `utf8` on one line and harmless to a terminal: each control character becomes a question mark.
std::string printable(const std::string& utf8);

} // namespace firecheck
