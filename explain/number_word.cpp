#include "explain/number_word.h"

#include "explain/Words.h"

#include <array>

namespace firestandard {

std::string numberWord(int number) {
    static const std::array<const char*, 10> words = {
        QT_TRANSLATE_NOOP("Words", "zero"),  QT_TRANSLATE_NOOP("Words", "one"),
        QT_TRANSLATE_NOOP("Words", "two"),   QT_TRANSLATE_NOOP("Words", "three"),
        QT_TRANSLATE_NOOP("Words", "four"),  QT_TRANSLATE_NOOP("Words", "five"),
        QT_TRANSLATE_NOOP("Words", "six"),   QT_TRANSLATE_NOOP("Words", "seven"),
        QT_TRANSLATE_NOOP("Words", "eight"), QT_TRANSLATE_NOOP("Words", "nine")};
    const bool hasWord = number >= 0 && number < static_cast<int>(words.size());
    return hasWord ? filled(Words::tr(words[static_cast<std::size_t>(number)])) : std::to_string(number);
}

} // namespace firestandard
