#include "report/counts.h"

#include "explain/Words.h"

namespace firecheck {

using firestandard::Words;

QString violationsText(std::size_t count) {
    return count == 1 ? Words::tr("1 violation") : Words::tr("%n violations", "", static_cast<int>(count));
}

QString furtherText(std::size_t count) {
    return count == 1 ? Words::tr("1 more violation of the same rule by the same element")
                      : Words::tr("%n more violations of the same rule by the same element", "",
                                  static_cast<int>(count));
}

QString rulesText(std::size_t count) {
    return count == 1 ? Words::tr("1 rule") : Words::tr("%n rules", "", static_cast<int>(count));
}

QString objectsText(std::size_t count) {
    return count == 1 ? Words::tr("1 object") : Words::tr("%n objects", "", static_cast<int>(count));
}

QString acceptedText(std::size_t count) {
    return Words::tr("%n accepted", "", static_cast<int>(count));
}

QString unjudgedElementsText(std::size_t count) {
    return count == 1 ? Words::tr("1 element not judged")
                      : Words::tr("%n elements not judged", "", static_cast<int>(count));
}

QString leftOutRulesText(std::size_t count) {
    return count == 1 ? Words::tr("1 rule left out")
                      : Words::tr("%n rules left out", "", static_cast<int>(count));
}

} // namespace firecheck
