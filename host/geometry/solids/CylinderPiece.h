#pragma once

#include "geometry/solids/ConvexPiece.h"

namespace hrx::solids {

/// A whole cylinder with flat ends.
class CylinderPiece : public ConvexPiece {
public:
    CylinderPiece(const CVec3<double>& bottom, const CVec3<double>& top, double radius);
    CVec3<double> support(const CVec3<double>& direction) const override;
    CVec3<double> anyPoint() const override { return m_bottom; }
    const CylinderPiece* asCylinder() const override { return this; }

    const CVec3<double>& bottom() const { return m_bottom; }
    const CVec3<double>& axis() const { return wall(); }
    double length() const { return m_length; }
    double radius() const { return m_radius; }

private:
    CylinderPiece(const CVec3<double>& bottom, const CVec3<double>& along, double length, double radius);

    CVec3<double> m_bottom;
    double m_length;
    double m_radius;
};

} // namespace hrx::solids
