#pragma once

#include "lint/LintFindings.h"

namespace firecheck {

/// Finds what is wrong with one rule by itself: its type, its name, its attributes and its texts.
void lintRule(const RuleFileNode& rule, LintFindings& findings);

} // namespace firecheck
