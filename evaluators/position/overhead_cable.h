#pragma once

#include "evaluators/rule_catalogue.h"

#include <vector>

class UdDbBlock;

namespace firestandard {

/// No raised service cable may run over a yard, or over a workshop of the use that the rule's name asks for,
/// seen in plan. One record for each such cable and area: the cable with the area as its related element,
/// yards before workshops. `row` is the catalogue's of the rule's name.
///
/// Deliberate: yards of all three kinds are judged under every rule, so that existing rule files that name
/// only one of them cover all.
std::vector<NuxStandardCheckRule> checkOverheadCables(const UdDbBlock& modelSpace,
                                                      const NuxStandardCheckRule& rule, const RuleRow& row);

} // namespace firestandard
