#pragma once

#include "geometry/CExtents3.h"

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
};

} // namespace hrx
