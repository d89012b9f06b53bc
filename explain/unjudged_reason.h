#pragma once

#include "evaluators/CheckObserver.h"

#include <string>

class UdDbObject;

namespace firestandard {

/// Why an element was not judged, after its name: "its depth is 0", "its outline crosses itself: the edge
/// from corner 2 to 3 crosses that from 4 to 1". Corners count from 1 as the host gives them.
std::string unjudgedReason(const UdDbObject& element, NotJudged why);

/// Why no rule can measure the closed polyline by which the element gives its footprint; empty when rules
/// can, and for an element that gives it otherwise.
std::string polylineFlaw(const UdDbObject& element);

/// Whether the element is unfit or was left out, rather than of no concern to the rule, as a cable that lies
/// on the ground or an element of another use.
bool isLeftOut(NotJudged why);

} // namespace firestandard
