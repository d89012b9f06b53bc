#pragma once

#include "geometry/solids/SolidContact.h"
#include "geometry/solids/UprightSolid.h"

namespace hrx {

/// Exact: the distance of the plans and the gap of the levels are perpendicular to each other. Both solids
/// must be measurable.
SolidContact uprightContact(const UprightSolid& a, const UprightSolid& b);

} // namespace hrx
