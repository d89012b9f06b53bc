#pragma once

#include "geometry/CExtents3.h"
#include "geometry/ConvexPiece.h"
#include "geometry/UprightSolid.h"

namespace hrx {

/// A solid in the world frame, in mm. Lives on the heap; whoever builds one deletes it, or calls Free().
class CBody {
public:
    CBody() = default;
    CBody(const CBody&) = delete;
    CBody& operator=(const CBody&) = delete;
    virtual ~CBody() = default;

    void Free() { delete this; }

    /// Least box around the solid, arcs and leaning cylinders included; empty for a solid without points.
    virtual CExtents3 GetExtents() const = 0;
    /// True when the solid passes every check of its kind and has a volume.
    virtual bool isStrictlyValid() const = 0;

    /// True when a distance to the solid makes sense: it has points, all finite and within 1e12 mm of the
    /// world's origin. The members below need it.
    virtual bool isMeasurable() const = 0;
    /// Describes the solid as one that stands straight up, if it is one. What it borrows lives as long as the
    /// body.
    virtual bool describeUpright(UprightSolid&) const { return false; }
    /// Appends pieces that make up the solid, moved by -origin.
    virtual void appendPieces(const CVec3<double>& origin, ConvexPieces& pieces) const = 0;
};

} // namespace hrx
