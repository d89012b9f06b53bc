#pragma once

#include "report/SiteReport.h"

namespace firecheck {

/// What to do, a line for each step, or that nothing helps and why.
std::vector<std::string> suggestionLines(const Suggestion& suggestion);

/// Every finding of the report with its suggestion.
std::string suggestionsText(const SiteReport& report);

/// The changes in their order, and what remains. `report` is that of the site without them.
std::string planText(const SiteReport& report, const SitePlan& plan);

} // namespace firecheck
