#pragma once

#include "report/merged_findings.h"

namespace firecheck {

/// What chooses among the violations of a site by rule, element and text, and orders them. It needs a script.
QString findingFilters(const SiteReport& report, const std::vector<MergedFinding>& merged);

/// What people call a rule: its description, or its name where it has none.
QString ruleHeading(const NuxStandardCheckRule& rule);

/// The offending element, then the others from the nearest on.
std::vector<long long> concernedElements(const SiteReport& report, const Finding& finding);

} // namespace firecheck
