#pragma once

#include "geometry/CCoord3.h"

namespace hrx {

/// A circular arc in space. In its frame (origin the start, x axis away from the centre, y axis the way the
/// arc leaves) the arc is radius * (cos s - 1, sin s, 0) for s from 0 to sweep. The centre, whose coordinates
/// lose precision on flat arcs, is not referred to.
class CPlaneCurve3d {
public:
    /// The arc from start through a third point to end. Three points that fix no circle make a degenerate
    /// curve.
    CPlaneCurve3d(const CVec3<double>& start, const CVec3<double>& end, const CVec3<double>& through);

    bool isDegenerate() const { return !(m_radius > 0.0); }
    const CCoord3<double>& frame() const { return m_frame; }
    double radius() const { return m_radius; }
    /// Radians, within (0, 2 pi).
    double sweep() const { return m_sweep; }

private:
    CCoord3<double> m_frame;
    double m_radius = 0.0;
    double m_sweep = 0.0;
};

} // namespace hrx
