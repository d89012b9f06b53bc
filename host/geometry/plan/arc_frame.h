#pragma once

#include "geometry/Edge2d.h"

namespace hrx::plan {

/// An arc seen from its apex, the point half way along it: u runs along the chord, v from the apex towards
/// the centre. The circle is curvature * (u^2 + v^2) = 2 v, which stays well conditioned however large the
/// radius; nothing here refers to the centre, whose coordinates lose precision on flat arcs.
struct ArcFrame {
    explicit ArcFrame(const Edge2d& arc);

    CVec2<double> toLocal(const CVec2<double>& point) const { return directionToLocal(point - apex); }
    CVec2<double> directionToLocal(const CVec2<double>& v) const { return {dot(v, along), dot(v, inward)}; }
    CVec2<double> toWorld(const CVec2<double>& local) const {
        return apex + along * local.x + inward * local.y;
    }

    /// From the centre to a point, in radii. Exact near the centre, where the equation says nothing of it.
    CVec2<double> fromCentre(const CVec2<double>& local) const {
        return {curvature * local.x, curvature * local.y - 1.0};
    }
    /// Value of the circle's equation; the sign tells inside (negative) from outside.
    double equation(const CVec2<double>& local) const {
        return curvature * dot(local, local) - 2.0 * local.y;
    }
    /// Distance from the circle, negative inside.
    double signedGap(const CVec2<double>& local) const;
    /// The point of the circle nearest to a point; the apex for the centre.
    CVec2<double> footOf(const CVec2<double>& local) const;
    /// True when the nearest point of the circle is on the arc.
    bool facesArc(const CVec2<double>& local) const;

    /// The point of the circle in a direction (local, unit) from its centre.
    CVec2<double> pointInDirection(const CVec2<double>& direction) const;
    /// True when that point is on the arc.
    bool spansDirection(const CVec2<double>& direction) const;

    CVec2<double> apex;
    CVec2<double> along;
    CVec2<double> inward;
    double curvature; ///< 1 / radius, positive
    double halfChord;
    double cosHalfSweep;
};

} // namespace hrx::plan
