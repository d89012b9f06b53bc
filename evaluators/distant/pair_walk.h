#pragma once

#include "rules_config/NuxStandardCheckRule.h"

#include <vector>

class UdDbBlock;

/// Measures every first element against every other element of the reference type. Pairs are ordered: of two
/// elements of one type each is measured from the other's side and reported under both. 3-D model objects are
/// first elements only.
std::vector<NuxStandardCheckRule> checkAllPairs(const UdDbBlock& modelSpace,
                                                const NuxStandardCheckRule& rule);
