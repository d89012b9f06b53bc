#pragma once

#include "rules/vocabulary.h"

// The names of each evaluator; vocabulary.h puts them together.

std::vector<RuleName> selfRuleNames();
std::vector<RuleName> distantRuleNames();
std::vector<RuleName> positionRuleNames();
std::vector<RuleName> withoutRuleNames();
