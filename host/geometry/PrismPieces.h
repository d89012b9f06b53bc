#pragma once

#include "geometry/CCoord3.h"
#include "geometry/CPolygon.h"
#include "geometry/ConvexPiece.h"
#include "geometry/PlaneHull.h"

namespace hrx {

/// The hull of edges in the XY plane of a frame, raised by a height: a whole prism over a convex outline.
class PrismPiece : public ConvexPiece {
public:
    PrismPiece(const CCoord3<double>& frame, double height) : m_frame(frame), m_height(height) {}
    void add(const Edge2d& edge) { m_hull.add(edge); }
    CVec3<double> support(const CVec3<double>& direction) const override;

protected:
    const CCoord3<double>& frame() const { return m_frame; }
    double height() const { return m_height; }

private:
    CCoord3<double> m_frame;
    double m_height;
    PlaneHull m_hull;
};

/// The wall over one edge of an outline: a rectangle, or a part of a cylinder.
class WallPiece : public PrismPiece {
public:
    WallPiece(const CCoord3<double>& frame, double height, const Edge2d& edge);
    CVec3<double> onPart(const CVec3<double>& hullPoint) const override;
    void split(ConvexPieces& halves) const override;

private:
    Edge2d m_edge;
};

/// The bottom or top of a prism over any outline. Never divided: walls come as near wherever a convex solid
/// does not come nearest inside the outline. Borrows the outline, whose coordinates are those of the frame
/// and offset.
class CapPiece : public PrismPiece {
public:
    CapPiece(const CCoord3<double>& frame, const CPolygon& outline, const CVec2<double>& offset);
    CVec3<double> onPart(const CVec3<double>& hullPoint) const override;

private:
    const CPolygon& m_outline;
    CVec2<double> m_offset;
};

} // namespace hrx
