#pragma once

#include "geometry/CExtents3.h"

#include <boost/container/small_vector.hpp>

#include <cmath>
#include <memory>

namespace hrx::solids {

/// Part of a solid, stood for by its convex hull. Where the part is not convex itself, it
/// tells how far a point of the hull is from it, and divides into parts that fill their hulls better.
class ConvexPiece {
public:
    virtual ~ConvexPiece() = default;

    /// A point of the part that is furthest in a direction (not zero, any length).
    virtual CVec3<double> support(const CVec3<double>& direction) const = 0;
    /// As above, for a unit direction; where many points are as far, one level with a point of the part. An
    /// iteration that is given the other end of a wall instead walks up and down it and stalls.
    virtual CVec3<double> supportLevelWith(const CVec3<double>&, const CVec3<double>& direction) const {
        return support(direction);
    }
    /// The point of the part to use instead of a point of the hull: the same point where the part is convex.
    virtual CVec3<double> onPart(const CVec3<double>& hullPoint) const { return hullPoint; }
    /// Appends two halves; appends nothing when the part needs no dividing.
    virtual void split(boost::container::small_vector<std::unique_ptr<ConvexPiece>, 6>&) const {}

    CExtents3 box() const {
        CExtents3 extents;
        for (const CVec3<double>& axis :
             {CVec3<double>(1, 0, 0), CVec3<double>(0, 1, 0), CVec3<double>(0, 0, 1)}) {
            extents.add(support(axis));
            extents.add(support(axis * -1.0));
        }
        return extents;
    }
};

/// Whether a unit direction is level with a wall: to 1e-13 of it all points of the wall are as far, to 1e-9
/// mm for walls up to 10 m.
inline bool isLevel(double alongWall) {
    return std::abs(alongWall) <= 1e-13;
}

using ConvexPieces = boost::container::small_vector<std::unique_ptr<ConvexPiece>, 6>;

} // namespace hrx::solids
