#pragma once

#include "suggest/Suggestion.h"

namespace firecheck {

/// A list with an entry for each suggestion; "finding" is an index in the report's findings.
Json suggestionsJson(const std::vector<Suggestion>& suggestions);

/// {"steps": [...], "remaining": [...]}.
Json planJson(const SitePlan& plan);

} // namespace firecheck
