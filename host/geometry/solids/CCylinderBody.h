#pragma once

#include "geometry/CBody.h"

namespace hrx::solids {

/// A round cylinder with flat ends, in any direction.
class CCylinderBody : public CBody {
public:
    CCylinderBody(const CVec3<double>& bottom, const CVec3<double>& top, double radius)
        : m_bottom(bottom), m_top(top), m_radius(radius) {}

    CExtents3 GetExtents() const override;
    bool isStrictlyValid() const override;
    bool isMeasurable() const override;
    Kind kind() const override { return Kind::Cylinder; }

    const CVec3<double>& bottom() const { return m_bottom; }
    const CVec3<double>& top() const { return m_top; }
    double radius() const { return m_radius; }

private:
    CVec3<double> m_bottom;
    CVec3<double> m_top;
    double m_radius;
};

} // namespace hrx::solids
