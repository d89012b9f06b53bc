#pragma once

#include "rules_config/NuxStandardCheckRule.h"

#include <vector>

class UdDbBlock;

/// A wall with two or more doors, and doors on two walls that meet in a wide corner. Each record names a door
/// and at most one other door.
std::vector<NuxStandardCheckRule> checkDoorToDoor(const UdDbBlock& modelSpace,
                                                  const NuxStandardCheckRule& rule);
