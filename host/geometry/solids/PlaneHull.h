#pragma once

#include "geometry/plan/arc_frame.h"

#include <boost/container/small_vector.hpp>

namespace hrx::solids {

/// The convex hull of lines and arcs of a plane, as a support function. Arcs are not subdivided.
class PlaneHull {
public:
    void add(const Edge2d& edge);
    /// The point furthest in a direction, which need not be a unit vector. The hull must not be empty.
    CVec2<double> support(const CVec2<double>& direction) const;
    const CVec2<double>& anyCorner() const { return m_corners.front(); }

private:
    boost::container::small_vector<CVec2<double>, 8> m_corners;
    boost::container::small_vector<plan::ArcFrame, 1> m_arcs;
};

} // namespace hrx::solids
