#pragma once

#include "suggest/Workbench.h"

#include <QString>

#include <string>

namespace firecheck {

/// What a change is called in JSON: "move".
const char* actionName(Action::Kind kind);

/// What to do, and what the rule that it is for measures then, the smallest value of several: 'Move dormitory
/// 413 "Dormitory 3" 0.50 m north: Distant_PrefabHouseToPrefabHouse then measures 4.00 m'. `site` is as it
/// stands before.
std::string proposalText(const TrialSite& site, const Proposal& proposal, const Targets& targets);

/// "12.50 m", with more decimals where the length has them.
QString lengthText(double millimetres);

/// The value of the key "use", a name or a number.
QString useText(const Json& use);

} // namespace firecheck
