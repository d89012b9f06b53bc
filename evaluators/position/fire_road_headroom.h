#pragma once

#include "rules_config/NuxStandardCheckRule.h"

#include <vector>

class UdDbBlock;

/// Nothing but roads, washing pools, doors, vehicles and construction machines may reach into the headroom
/// above a fire road. One record for each road and intruder: the road with the intruder as its related
/// element.
///
/// Deliberate: the records are those of the last object of the model space alone, be it one that intrudes
/// nowhere.
std::vector<NuxStandardCheckRule> checkFireRoadHeadroom(const UdDbBlock& modelSpace,
                                                        const NuxStandardCheckRule& rule);
