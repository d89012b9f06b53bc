#pragma once

#include "geometry/CCoord3.h"
#include "geometry/solids/ConvexPiece.h"
#include "geometry/solids/PlaneHull.h"

namespace hrx::solids {

/// The hull of edges in the XY plane of a frame, raised by a height: the prism over a convex outline.
class PrismPiece : public ConvexPiece {
public:
    PrismPiece(const CCoord3<double>& frame, double height)
        : ConvexPiece(frame.zAxis), m_frame(frame), m_height(height) {}
    /// Adds an edge of the outline; there must be one before the first use.
    void add(const Edge2d& edge) { m_hull.add(edge); }
    CVec3<double> support(const CVec3<double>& direction) const override;

    CVec3<double> anyPoint() const override;

protected:
    const CCoord3<double>& frame() const { return m_frame; }
    double height() const { return m_height; }

private:
    CCoord3<double> m_frame;
    double m_height;
    PlaneHull m_hull;
};

} // namespace hrx::solids
