#pragma once

#include "lint/LintFindings.h"

namespace firecheck {

/// Judges the condition and the distances of a distance rule and, when its element types are right in
/// themselves, whether such a pair is ever measured and whether the name counts open sheds.
void lintDistanceRule(const RuleFileNode& rule, bool areTypesRight, LintFindings& findings);

} // namespace firecheck
