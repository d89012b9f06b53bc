#pragma once

#include "rules_config/NuxStandardCheckRule.h"

#include <vector>

class UdDbBlock;

// A spacing walk measures every unordered pair of elements of one class once. Deliberate: it reports an
// offending pair once, under the element that comes first in the model space, where other distance rules
// report it from both sides; existing results are read so. The class alone decides; type identifiers are not
// consulted.

std::vector<NuxStandardCheckRule> checkPrefabHouseSpacing(const UdDbBlock& modelSpace,
                                                          const NuxStandardCheckRule& rule);

/// Deliberate: spaces the total step-down substations, though the rule is written for transformer
/// substations; existing drawings are judged so.
std::vector<NuxStandardCheckRule> checkSubstationSpacing(const UdDbBlock& modelSpace,
                                                         const NuxStandardCheckRule& rule);
