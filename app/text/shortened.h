#pragma once

#include <string>

namespace firecheck {

/// A text of the input as messages quote it: printable, and its start and "..." where it is long.
std::string shortened(const std::string& whole);

} // namespace firecheck
