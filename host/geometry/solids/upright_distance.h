#pragma once

#include "geometry/CPolygon.h"
#include "geometry/solids/SolidContact.h"

namespace hrx::solids {

/// A solid that stands straight up: a plan region, an outline or else a disc, between two levels. Borrows the
/// outline.
struct UprightSolid {
    const CPolygon* outline = nullptr; ///< null for a disc
    CVec2<double> centre;
    double radius = 0.0;
    double low = 0.0;
    double high = 0.0;
};

/// Exact: the distance of the plans and the gap of the levels are perpendicular to each other. Both solids
/// must be measurable.
SolidContact uprightContact(const UprightSolid& a, const UprightSolid& b);

} // namespace hrx::solids
