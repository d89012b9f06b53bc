#pragma once

#include "suggest/Suggestion.h"
#include "suggest/Workbench.h"

namespace firecheck {

/// A proposal as reports tell it. `site` is as it stands before.
SuggestedStep suggestedStep(const TrialSite& site, const Proposal& proposal, const Targets& targets);

SuggestedRemoval suggestedRemoval(const TrialSite& site, const Offence& offence);

} // namespace firecheck
