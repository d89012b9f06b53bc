#include "explain/number_word.h"

#include <array>

namespace firestandard {

std::string numberWord(int number) {
    static const std::array<const char*, 10> words = {"zero", "one", "two",   "three", "four",
                                                      "five", "six", "seven", "eight", "nine"};
    const bool hasWord = number >= 0 && number < static_cast<int>(words.size());
    return hasWord ? words[static_cast<std::size_t>(number)] : std::to_string(number);
}

} // namespace firestandard
