#include "geometry/solids/CylinderPiece.h"

#include <cmath>

namespace hrx::solids {

CylinderPiece::CylinderPiece(const CVec3<double>& bottom, const CVec3<double>& top, double radius)
    : CylinderPiece(bottom, top - bottom, hrx::length(top - bottom), radius) {}

CylinderPiece::CylinderPiece(const CVec3<double>& bottom, const CVec3<double>& along, double length,
                             double radius)
    : ConvexPiece(along * (1.0 / length)), m_bottom(bottom), m_length(length), m_radius(radius) {}

CVec3<double> CylinderPiece::support(const CVec3<double>& direction) const {
    const double up = dot(direction, axis());
    const CVec3<double> aside = direction - axis() * up;
    // Taken twice, so that the point stays in the plane of its end however near the direction is to the axis;
    // nearer than rounding can tell, the middle of the end is as far.
    const CVec3<double> across = aside - axis() * dot(aside, axis());
    const double size = hrx::length(across);
    const double scale = size > 1e-14 * std::abs(up) ? m_radius / size : 0.0;
    return m_bottom + axis() * (up > 0.0 ? m_length : 0.0) + across * scale;
}

} // namespace hrx::solids
