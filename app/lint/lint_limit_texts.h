#pragma once

#include "lint/LintFindings.h"

namespace firecheck {

/// Compares the first figure in metres, or square metres, of a rule's descriptions with the limit by which
/// the rule judges. Further figures of a description are of other things.
void lintLimitTexts(const RuleFileNode& rule, LintFindings& findings);

} // namespace firecheck
