#include "text/advice.h"

#include "text/words.h"

namespace firecheck {

std::string reasonAndAdvice(const std::string& reason, const std::string& suggestion) {
    return suggestion.empty() ? reason : filled(Words::tr("%1; did you mean \"%2\"?"), reason, suggestion);
}

std::string sentenceAndAdvice(const std::string& sentence, const std::string& suggestion) {
    return suggestion.empty() ? sentence : filled(Words::tr("%1 Did you mean \"%2\"?"), sentence, suggestion);
}

} // namespace firecheck
