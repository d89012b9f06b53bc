#pragma once

#include <string>

namespace firecheck {

/// 'expected a use; did you mean "office"?'; the reason alone where nothing is suggested.
std::string reasonAndAdvice(const std::string& reason, const std::string& suggestion);

/// The same for a whole sentence: 'No house is used so. Did you mean "office"?'
std::string sentenceAndAdvice(const std::string& sentence, const std::string& suggestion);

} // namespace firecheck
