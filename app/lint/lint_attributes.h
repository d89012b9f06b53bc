#pragma once

#include "lint/LintFindings.h"

namespace firecheck {

/// Finds the attributes that are not among those `read`. Those that XML itself defines may stand anywhere.
void lintUnknownAttributes(const RuleFileNode& node, const std::vector<std::string>& read,
                           LintFindings& findings);

/// The candidate that `text` was probably meant to be; empty when none is near.
std::string nearestOf(const std::string& text, const std::vector<std::string>& candidates);

} // namespace firecheck
