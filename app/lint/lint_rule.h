#pragma once

#include "lint/LintFindings.h"

/// Finds what is wrong with one rule by itself: its type, its name, its attributes and its texts.
void lintRule(const RuleFileNode& rule, LintFindings& findings);
