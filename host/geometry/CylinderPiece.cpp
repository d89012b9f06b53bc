#include "geometry/CylinderPiece.h"

namespace hrx {

CylinderPiece::CylinderPiece(const CVec3<double>& bottom, const CVec3<double>& top, double radius)
    : m_bottom(bottom), m_top(top), m_axis((top - bottom) * (1.0 / length(top - bottom))), m_radius(radius) {}

CVec3<double> CylinderPiece::support(const CVec3<double>& direction) const {
    const double along = dot(direction, m_axis);
    const CVec3<double> end = along > 0.0 ? m_top : m_bottom;
    const CVec3<double> across = direction - m_axis * along;
    const double size = length(across);
    return size > 0.0 ? end + across * (m_radius / size) : end;
}

} // namespace hrx
