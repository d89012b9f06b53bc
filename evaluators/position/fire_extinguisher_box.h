#pragma once

#include "evaluators/rule_catalogue.h"

#include <vector>

class UdDbBlock;

namespace firestandard {

/// Every element of the rule's element type needs a box more than 0 and at most kMaximumBoxDistance away;
/// each one whose nearest box is not so yields a record with all boxes that are touching or too far. `row` is
/// the catalogue's of the rule's name.
///
/// Deliberate: the first element to which no box has a measurable distance ends the rule with the records
/// found so far; results that existing drawings give depend on it.
std::vector<NuxStandardCheckRule>
checkFireExtinguisherBoxes(const UdDbBlock& modelSpace, const NuxStandardCheckRule& rule, const RuleRow& row);

} // namespace firestandard
