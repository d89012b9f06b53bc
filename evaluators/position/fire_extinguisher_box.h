#pragma once

#include "rules_config/NuxStandardCheckRule.h"

#include <string_view>
#include <vector>

class NUXElementObject;
class UdDbBlock;
class UdDbObject;

inline constexpr double kMaximumBoxDistance = 3000.0; ///< millimetres

bool isFireExtinguisherBoxRule(const QString& ruleName);

/// Every element of the rule's element type needs a box more than 0 and at most kMaximumBoxDistance away;
/// each one whose nearest box is not so yields a record with all boxes that are touching or too far.
///
/// Deliberate: the first element to which no box has a measurable distance ends the rule with the records
/// found so far.
std::vector<NuxStandardCheckRule> checkFireExtinguisherBoxes(const UdDbBlock& modelSpace,
                                                             const NuxStandardCheckRule& rule);

/// The clear distance in millimetres between an element, which reports `type`, and a box, both as solids 1.0
/// high. kNoBodyDistance when either has no body, as an open shed of another use than the rule asks for; 0.0
/// when the element only claims to be an open shed.
double boxDistance(const NUXElementObject& element, std::wstring_view type, const UdDbObject& box,
                   const QString& ruleName);
