#pragma once

#include "geometry/CCoord3.h"
#include "geometry/solids/ConvexPiece.h"

namespace hrx::solids {

/// A whole cylinder with flat ends.
class CylinderPiece : public ConvexPiece {
public:
    CylinderPiece(const CVec3<double>& bottom, const CVec3<double>& top, double radius);
    CVec3<double> support(const CVec3<double>& direction) const override;
    CVec3<double> supportLevelWith(const CVec3<double>& point, const CVec3<double>& direction) const override;

private:
    CVec3<double> onWall(const CVec3<double>& localDirection, double level) const;

    CCoord3<double> m_frame; ///< origin at the bottom, z axis along the cylinder
    double m_length;
    double m_radius;
};

} // namespace hrx::solids
