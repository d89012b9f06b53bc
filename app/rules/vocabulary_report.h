#pragma once

#include "json/Json.h"

#include <string>

namespace firecheck {

// The rule names and the distances that are measured, in three forms of the same content.

std::string vocabularyText();
Json vocabularyJson();
/// The page of the documentation.
std::string vocabularyMarkdown();

} // namespace firecheck
