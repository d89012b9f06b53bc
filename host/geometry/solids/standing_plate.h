#pragma once

#include "geometry/CCoord3.h"
#include "geometry/CPolygon.h"

#include <optional>

namespace hrx::solids {

/// A plate that stands on its edge, seen as a box that stands upright.
struct StandingPlate {
    PolygonRef plan; ///< in world coordinates
    double low;
    double high;
};

/// The plate that a rectangle in the XY plane of a frame makes when it is raised by a height along the
/// frame's z axis. Nothing unless that plane stands upright, with one axis level, and the rectangle has its
/// sides along the axes, all to the last bit.
std::optional<StandingPlate> standingPlate(const CCoord3<double>& frame, double height,
                                           const CPolygon& outline);

} // namespace hrx::solids
