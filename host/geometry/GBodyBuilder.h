#pragma once

#include "geometry/CBody.h"

namespace hrx {

class CPlaneCurve3d;
class CPolygon;

/// Builds solids of circular section. The caller owns what it returns.
class GBodyBuilder {
public:
    /// The flags are part of the platform's signature and change nothing.
    GBodyBuilder(bool, bool) {}

    /// A round cylinder with flat ends, in any direction; null without a positive radius and length, or when
    /// not finite.
    CBody* CylinderBody(const CVec3<double>& bottom, const CVec3<double>& top, double radius);
    /// A tube with flat ends around the path. The section is shared like the outline of a CExtrudedBody; it
    /// must be one full circle about the origin, no larger than the path's own circle. Null otherwise, and
    /// when the path is degenerate.
    CBody* SweepBody(CPolygon* section, const CPlaneCurve3d& path);
};

} // namespace hrx
