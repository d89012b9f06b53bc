#pragma once

#include "rules_config/NuxStandardCheckRule.h"

#include <vector>

class UdDbBlock;

bool isOverheadCableRule(const QString& ruleName);

/// No raised service cable may run over a yard, or over a workshop of the kind that the rule names, seen in
/// plan. One record for each such cable and area: the cable with the area as its related element, yards
/// before workshops.
///
/// Deliberate: yards of all three kinds are judged under every rule.
std::vector<NuxStandardCheckRule> checkOverheadCables(const UdDbBlock& modelSpace,
                                                      const NuxStandardCheckRule& rule);
