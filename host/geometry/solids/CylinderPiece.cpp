#include "geometry/solids/CylinderPiece.h"

#include <algorithm>
#include <cmath>

namespace hrx::solids {

CylinderPiece::CylinderPiece(const CVec3<double>& bottom, const CVec3<double>& top, double radius)
    : m_length(length(top - bottom)), m_radius(radius) {
    const CVec3<double> axis = (top - bottom) * (1.0 / m_length);
    const CVec3<double> aside = std::abs(axis.z) < 0.7 ? CVec3<double>(0, 0, 1) : CVec3<double>(1, 0, 0);
    const CVec3<double> across = cross(axis, aside);
    const CVec3<double> xAxis = across * (1.0 / length(across));
    m_frame = {bottom, xAxis, cross(axis, xAxis), axis};
}

CVec3<double> CylinderPiece::support(const CVec3<double>& direction) const {
    const CVec3<double> local = m_frame.directionToLocal(direction);
    return onWall(local, local.z > 0.0 ? m_length : 0.0);
}

CVec3<double> CylinderPiece::supportLevelWith(const CVec3<double>& point,
                                              const CVec3<double>& direction) const {
    const CVec3<double> local = m_frame.directionToLocal(direction);
    if (!isLevel(local.z))
        return onWall(local, local.z > 0.0 ? m_length : 0.0);
    return onWall(local, std::clamp(m_frame.toLocal(point).z, 0.0, m_length));
}

CVec3<double> CylinderPiece::onWall(const CVec3<double>& localDirection, double level) const {
    // In the frame, so that the point stays in the plane of its end however near the direction is to the
    // axis.
    const CVec3<double>& local = localDirection;
    const double size = std::sqrt(local.x * local.x + local.y * local.y);
    const double scale = size > 0.0 ? m_radius / size : 0.0;
    return m_frame.toWorld({local.x * scale, local.y * scale, level});
}

} // namespace hrx::solids
