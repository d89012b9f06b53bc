#pragma once

#include <string>

namespace firestandard {

/// A small number as a sentence has it: "three"; in digits from ten on.
std::string numberWord(int number);

} // namespace firestandard
