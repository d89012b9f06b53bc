#pragma once

#include <string>

namespace firecheck {

/// The text of a file, or what is written to a pipe; "-" is standard input. `what` is expected there, "a site
/// file", and refused when it has more than 256 MiB. Throws InputError, which starts with the file's name.
std::string inputText(const std::string& fileName, const std::string& what);

} // namespace firecheck
