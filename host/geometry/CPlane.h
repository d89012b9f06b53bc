#pragma once

#include "geometry/CCoord3.h"

namespace hrx {

/// A plane of space with a frame of its own: origin and x axis in it, z axis its normal.
class CPlane {
public:
    /// The plane that fits the points best, seen counter-clockwise from its z axis; origin in the first
    /// point, x axis towards the first point apart from it. False, and the plane unchanged, when the points
    /// fix no plane.
    bool CreateByPoints(const CVec3<double>* points, int count);
    CCoord3<double> GetCoordinate() const { return m_frame; }

private:
    CCoord3<double> m_frame;
};

} // namespace hrx
