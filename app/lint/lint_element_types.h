#pragma once

#include "lint/LintFindings.h"

namespace firecheck {

struct RuleName;

/// Judges "ElementType" and "ReferenceElementType": those that the rule reads (`read`) must be there, must be
/// identifiers that elements report and must be those of the name (`known`, may be null); the others are only
/// descriptive, but must be identifiers. Answers whether nothing was found.
bool lintElementTypes(const RuleFileNode& rule, const std::vector<std::string>& read, const RuleName* known,
                      LintFindings& findings);

} // namespace firecheck
