#include "geometry/CCylinderBody.h"

#include "geometry/CylinderPiece.h"
#include "geometry/DistEpsilon.h"
#include "geometry/finite.h"

#include <algorithm>

namespace hrx {

CExtents3 CCylinderBody::GetExtents() const {
    return CylinderPiece(m_bottom, m_top, m_radius).box();
}

bool CCylinderBody::isStrictlyValid() const {
    return isFinite(m_bottom) && isFinite(m_top) && std::isfinite(m_radius) && m_radius > g_DistEpsilon &&
           length(m_top - m_bottom) > g_DistEpsilon;
}

bool CCylinderBody::isMeasurable() const {
    return isWithinReach(m_bottom) && isWithinReach(m_top) && isWithinReach(m_radius);
}

bool CCylinderBody::describeUpright(UprightSolid& solid) const {
    if (m_bottom.x != m_top.x || m_bottom.y != m_top.y)
        return false;
    solid.centre = {m_bottom.x, m_bottom.y};
    solid.radius = m_radius;
    solid.low = std::min(m_bottom.z, m_top.z);
    solid.high = std::max(m_bottom.z, m_top.z);
    return true;
}

void CCylinderBody::appendPieces(const CVec3<double>& origin, ConvexPieces& pieces) const {
    pieces.push_back(std::make_unique<CylinderPiece>(m_bottom - origin, m_top - origin, m_radius));
}

} // namespace hrx
