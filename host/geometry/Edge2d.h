#pragma once

#include "geometry/CBox2d.h"
#include "geometry/CVec2.h"

#include <utility>

namespace hrx {

/// One edge of an outline: a straight line or a circular arc from start to end, in mm.
///
/// bulge = tan(sweep / 4): 0 straight, 1 a half circle, positive counter-clockwise. An edge without length is
/// a point whatever its bulge, so a full circle takes two edges. The members that speak of a circle (centre,
/// radius, ...) are for arcs only.
struct Edge2d {
    CVec2<double> start;
    CVec2<double> end;
    double bulge = 0.0;

    /// False for an arc so flat that it leaves its chord by less than 1e-7 mm, and for an edge without
    /// length.
    bool isArc() const {
        const CVec2<double> rise = (end - start) * (0.5 * bulge);
        return bulge != 0.0 && dot(rise, rise) > 1e-14;
    }
    /// The point half way along the edge; of an arc, its apex over the chord.
    CVec2<double> middle() const;
    /// Least box around the edge, arcs included.
    CBox2d box() const;
    /// A box that surely holds the edge, larger where that spares the rounding of a very large radius.
    CBox2d looseBox() const;
    /// Unit vector in which the edge leaves its start; (0, 0) without length.
    CVec2<double> startDirection() const;
    /// Unit vector in which the edge arrives at its end; (0, 0) without length.
    CVec2<double> endDirection() const;
    /// The same points run through the other way.
    Edge2d reversed() const { return {end, start, -bulge}; }

    /// The edge in two, divided at its middle.
    std::pair<Edge2d, Edge2d> halves() const;

    CVec2<double> centre() const;
    double radius() const;
    /// Angle swept from start to end, radians, positive counter-clockwise, within (-2 pi, 2 pi).
    double sweep() const;
};

/// True when p is left of the line from start to end. A point on the line is judged as if it lay a trace
/// further along +x (along +y when the edge runs along x), so neighbouring edges never disagree about it.
bool isLeftOf(const Edge2d& edge, const CVec2<double>& p);

} // namespace hrx
