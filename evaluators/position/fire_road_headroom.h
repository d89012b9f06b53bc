#pragma once

#include "rules_config/NuxStandardCheckRule.h"

#include <vector>

class UdDbBlock;

namespace firestandard {

/// Nothing but roads, washing pools, doors, vehicles, construction machines and weighbridges may reach into
/// the headroom above a fire road. One record for each road and intruder: the road with the intruder as its
/// related element.
///
/// Deliberate: the records are those of the last object of the model space alone, even if it intrudes
/// nowhere; existing results are read so.
std::vector<NuxStandardCheckRule> checkFireRoadHeadroom(const UdDbBlock& modelSpace,
                                                        const NuxStandardCheckRule& rule);

} // namespace firestandard
