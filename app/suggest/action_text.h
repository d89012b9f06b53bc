#pragma once

#include "suggest/Workbench.h"

#include <string>

namespace firecheck {

/// What a change is called in JSON: "move".
const char* actionName(Action::Kind kind);

/// What to do: 'Move dormitory 413 "Dormitory 3" 0.50 m north'. `site` is as it stands before.
std::string actionText(const TrialSite& site, const Proposal& proposal);

/// With what the rule that it is for measures then, the smallest value of several.
std::string proposalText(const TrialSite& site, const Proposal& proposal, const Targets& targets);

/// Why nothing helps: what tries within the reach failed for most. `reach` in mm.
std::string obstacleText(const TrialSite& site, const Obstacles& obstacles, double reach);

} // namespace firecheck
