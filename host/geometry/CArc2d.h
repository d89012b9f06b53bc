#pragma once

#include "geometry/CCurve2d.h"

namespace hrx {

/// A circular arc in plan. Coordinates in mm.
class CArc2d : public CCurve2d {
public:
    /// The arc from start through the third point to end. Three points on one line, or two that coincide, fix
    /// no arc: the curve is degenerate.
    CArc2d(const CVec2<double>& start, const CVec2<double>& end, const CVec2<double>& through);

    /// The arc about the centre between two angles in radians, counter-clockwise when `toAngle` is the
    /// greater. Angles a full turn or more apart give the full circle, which starts and ends at `fromAngle`.
    CArc2d(const CVec2<double>& centre, double radius, double fromAngle, double toAngle);

    std::vector<Edge2d> edges() const override { return m_edges; }

private:
    std::vector<Edge2d> m_edges;
};

} // namespace hrx
