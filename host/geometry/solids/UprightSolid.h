#pragma once

#include "geometry/CPolygon.h"

namespace hrx {

/// A solid that stands straight up: a plan region, an outline or else a disc, between two levels. Borrows the
/// outline.
struct UprightSolid {
    const CPolygon* outline = nullptr; ///< null for a disc
    CVec2<double> centre;
    double radius = 0.0;
    double low = 0.0;
    double high = 0.0;
};

} // namespace hrx
