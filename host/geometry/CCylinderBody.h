#pragma once

#include "geometry/CBody.h"

namespace hrx {

/// A round cylinder with flat ends, in any direction.
class CCylinderBody : public CBody {
public:
    CCylinderBody(const CVec3<double>& bottom, const CVec3<double>& top, double radius)
        : m_bottom(bottom), m_top(top), m_radius(radius) {}

    CExtents3 GetExtents() const override;
    bool isStrictlyValid() const override;
    bool isMeasurable() const override;
    bool describeUpright(UprightSolid& solid) const override;
    void appendPieces(const CVec3<double>& origin, ConvexPieces& pieces) const override;

private:
    CVec3<double> m_bottom;
    CVec3<double> m_top;
    double m_radius;
};

} // namespace hrx
