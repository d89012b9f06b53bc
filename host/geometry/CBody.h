#pragma once

#include "geometry/CExtents3.h"

namespace hrx {

class CPolygon;

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
    /// world's origin.
    virtual bool isMeasurable() const = 0;

    /// The outline in plan of a solid that stands straight up over one; null for any other. The body keeps
    /// it.
    virtual const CPolygon* planOutline() const { return nullptr; }

    /// What the solid is made as: CExtrudedBody, or one of those that GBodyBuilder makes.
    enum class Kind { Extruded, Cylinder, Tube };
    virtual Kind kind() const = 0;
};

} // namespace hrx
