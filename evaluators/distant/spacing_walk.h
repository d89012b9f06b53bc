#pragma once

#include "rules_config/NuxStandardCheckRule.h"

#include <vector>

class NUXPrefabHouseObject;
class NUXTotalStepDownSubstationObject;
class UdDbBlock;

// A spacing walk measures every unordered pair of elements of one class once and reports an offending pair
// under the element that comes first in the model space. The class alone decides; type identifiers are not
// consulted.

std::vector<NuxStandardCheckRule> checkPrefabHouseSpacing(const UdDbBlock& modelSpace,
                                                          const NuxStandardCheckRule& rule);

/// Deliberate: spaces the total step-down substations, though the rule is written for transformer
/// substations.
std::vector<NuxStandardCheckRule> checkSubstationSpacing(const UdDbBlock& modelSpace,
                                                         const NuxStandardCheckRule& rule);

/// The clear distance between two houses including their stairs, in millimetres.
double prefabHousePairDistance(const NUXPrefabHouseObject& first, const NUXPrefabHouseObject& second);

/// The clear distance in millimetres; kNoBodyDistance when one has no body.
double substationPairDistance(const NUXTotalStepDownSubstationObject& first,
                              const NUXTotalStepDownSubstationObject& second);
