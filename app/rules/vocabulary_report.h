#pragma once

#include "json/Json.h"
#include "rules/vocabulary.h"

#include <string>

namespace firecheck {

// The rule names and the distances that are measured, in three forms of the same content.

std::string vocabularyText();
Json vocabularyJson();

// One rule name alone.
std::string ruleNameText(const RuleName& rule);
Json ruleNameJson(const RuleName& rule);

/// The page of the documentation.
std::string vocabularyMarkdown();

} // namespace firecheck
