#pragma once

#include "cad/UdDbBlock.h"
#include "rules_config/NuxStandardCheckRule.h"

#include <cstddef>

/// The floor under a rule's cost: steps through the model space, casts and reads identifiers as often as
/// judging the rule takes, and measures and records nothing. Answers how many objects were visited.
std::size_t bareWalk(const UdDbBlock& modelSpace, const NuxStandardCheckRule& rule);
