#pragma once

#include <string>

namespace firecheck {

/// A text of the input as messages show it: its start and "..." where it is long, UTF-8 kept whole.
std::string shortened(const std::string& text);

} // namespace firecheck
