#include "geometry/solids/PrismPiece.h"

namespace hrx::solids {

CVec3<double> PrismPiece::support(const CVec3<double>& direction) const {
    const CVec3<double> local = m_frame.directionToLocal(direction);
    const CVec2<double> plan = m_hull.support({local.x, local.y});
    const bool raised = (local.z > 0.0) == (m_height > 0.0);
    return m_frame.toWorld({plan.x, plan.y, raised ? m_height : 0.0});
}

CVec3<double> PrismPiece::anyPoint() const {
    const CVec2<double>& corner = m_hull.anyCorner();
    return m_frame.toWorld({corner.x, corner.y, 0.0});
}

} // namespace hrx::solids
