#pragma once

#include "geometry/solids/CylinderPiece.h"
#include "geometry/solids/gjk.h"

namespace hrx::solids {

/// The straight line between the middles of a cylinder's ends. Borrows the cylinder.
class CylinderAxis : public ConvexPiece {
public:
    explicit CylinderAxis(const CylinderPiece& cylinder)
        : ConvexPiece(cylinder.axis()), m_cylinder(cylinder) {}
    CVec3<double> support(const CVec3<double>& direction) const override;
    CVec3<double> anyPoint() const override { return m_cylinder.bottom(); }

private:
    const CylinderPiece& m_cylinder;
};

/// What the contact of a cylinder's axis (A) with another solid (B) says of the cylinder: where the point of
/// B lies beside the wall, it is as far from the cylinder as from the axis, less the radius; elsewhere that
/// is a lower bound, and no upper one is known.
HullContact contactOfWall(const CylinderPiece& cylinder, const HullContact& axisContact);

} // namespace hrx::solids
