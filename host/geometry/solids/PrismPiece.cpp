#include "geometry/solids/PrismPiece.h"

#include <algorithm>

namespace hrx::solids {

CVec3<double> PrismPiece::support(const CVec3<double>& direction) const {
    const CVec3<double> local = m_frame.directionToLocal(direction);
    const CVec2<double> plan = m_hull.support({local.x, local.y});
    const bool raised = (local.z > 0.0) == (m_height > 0.0);
    return m_frame.toWorld({plan.x, plan.y, raised ? m_height : 0.0});
}

CVec3<double> PrismPiece::supportLevelWith(const CVec3<double>& point, const CVec3<double>& direction) const {
    const CVec3<double> local = m_frame.directionToLocal(direction);
    if (!isLevel(local.z))
        return support(direction);
    const CVec2<double> plan = m_hull.support({local.x, local.y});
    const double low = std::min(0.0, m_height);
    const double high = std::max(0.0, m_height);
    return m_frame.toWorld({plan.x, plan.y, std::clamp(m_frame.toLocal(point).z, low, high)});
}

} // namespace hrx::solids
