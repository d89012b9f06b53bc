#pragma once

#include "geometry/CExtents3.h"

#include <boost/container/small_vector.hpp>

#include <cmath>
#include <memory>

namespace hrx::solids {

class CylinderPiece;

/// Part of a solid, stood for by its convex hull. Where the part is not convex itself, it
/// tells how far a point of the hull is from it, and divides into parts that fill their hulls better.
class ConvexPiece {
public:
    /// The unit direction along which the part's wall runs; (0, 0, 0) for a part without one.
    explicit ConvexPiece(const CVec3<double>& wall = {}) : m_wall(wall) {}
    virtual ~ConvexPiece() = default;

    /// A point of the part that is furthest in a direction (not zero, any length).
    virtual CVec3<double> support(const CVec3<double>& direction) const = 0;
    virtual CVec3<double> anyPoint() const = 0;
    /// The part as a whole cylinder, when it is one; null otherwise.
    virtual const CylinderPiece* asCylinder() const { return nullptr; }
    /// The point of the part to use instead of a point of the hull: the same point where the part is convex.
    virtual CVec3<double> onPart(const CVec3<double>& hullPoint) const { return hullPoint; }
    /// Appends two halves; appends nothing when the part needs no dividing.
    virtual void split(boost::container::small_vector<std::unique_ptr<ConvexPiece>, 6>&) const {}

    /// Whether all points along the wall are as far in a unit direction: to 1e-13 of it, which is 1e-9 mm on
    /// walls up to 10 m.
    bool isLevelWithWall(const CVec3<double>& direction) const {
        return std::abs(dot(direction, m_wall)) <= 1e-13;
    }
    /// The point that is as far up the wall as another point of the part.
    CVec3<double> movedLevelWith(const CVec3<double>& other, const CVec3<double>& point) const {
        return point + m_wall * dot(other - point, m_wall);
    }

    CExtents3 box() const {
        CExtents3 extents;
        for (const CVec3<double>& axis :
             {CVec3<double>(1, 0, 0), CVec3<double>(0, 1, 0), CVec3<double>(0, 0, 1)}) {
            extents.add(support(axis));
            extents.add(support(axis * -1.0));
        }
        return extents;
    }

protected:
    const CVec3<double>& wall() const { return m_wall; }

private:
    CVec3<double> m_wall;
};

using ConvexPieces = boost::container::small_vector<std::unique_ptr<ConvexPiece>, 6>;

} // namespace hrx::solids
