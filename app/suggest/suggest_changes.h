#pragma once

#include "report/SiteReport.h"
#include "rules/rule_file.h"
#include "suggest/Suggestion.h"
#include "suggest/Workbench.h"

#include <functional>
#include <string>
#include <vector>

namespace firecheck {

/// Is told before each finding how many were gone through, of how many, and by which rule it is.
using SuggestProgress = std::function<void(std::size_t done, std::size_t all, const std::string& rule)>;

/// What would remove each finding of the report that is not accepted, each by itself. `site` is what the
/// report is about, as read from its file. Afterwards the results of the engine are those of the last try.
std::vector<Suggestion> suggestChanges(const Json& site, const SiteReport& report, const RuleMap& rulesInUse,
                                       const SuggestOptions& options, const SuggestProgress& progress = {});

/// A sequence of changes that removes what can be removed: each of them makes nothing new or worse, and the
/// end is reached when no further one is found.
SitePlan planChanges(const Json& site, const RuleMap& rulesInUse, const SuggestOptions& options,
                     const SuggestProgress& progress = {});

} // namespace firecheck
