#include "geometry/solids/CCylinderBody.h"

#include "geometry/DistEpsilon.h"
#include "geometry/finite.h"
#include "geometry/solids/CylinderPiece.h"

namespace hrx::solids {

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

} // namespace hrx::solids
