#pragma once

#include "geometry/ConvexPiece.h"

namespace hrx {

/// A whole cylinder with flat ends.
class CylinderPiece : public ConvexPiece {
public:
    CylinderPiece(const CVec3<double>& bottom, const CVec3<double>& top, double radius);
    CVec3<double> support(const CVec3<double>& direction) const override;

private:
    CVec3<double> m_bottom;
    CVec3<double> m_top;
    CVec3<double> m_axis;
    double m_radius;
};

} // namespace hrx
