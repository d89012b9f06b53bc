#pragma once

#include "geometry/CCurve2d.h"
#include "geometry/CPolygon.h"

namespace hrx {

enum EnPolygonPolygonPosition : int {
    PolygonsShareBoundary = 0, ///< the boundaries share a point: they cross, touch or run along each other
    PolygonsApart = 1,
    FirstInsideSecond = 2,
    SecondInsideFirst = 3
};

enum EnCurvePolygonPosition : int {
    CurveSharesBoundary = 0, ///< the curve shares a point with the boundary
    CurveOutside = 1,
    CurveInside = 2
};

/// Positions in plan, exact on lines and arcs. Points whose distance is 0 to the nearest 1e-5 mm count as
/// shared, so that the answer does not depend on how a drawing is turned or where it lies. Nothing is owned;
/// null arguments, polygons without points and degenerate curves share no point with anything and are apart
/// or outside.
class CPositionJudge {
public:
    /// All loops count as boundary. One polygon is inside another when each of its loops runs inside the
    /// other's region, so a polygon in a hole is apart, and one that runs around a hole is inside.
    EnPolygonPolygonPosition GetPolygonPosition(const CPolygon* first, const CPolygon* second) const;

    /// A curve in a hole is outside.
    EnCurvePolygonPosition GetCurvePolygonPosition(const CCurve2d* curve, const CPolygon* polygon) const;
};

} // namespace hrx
