#include "geometry/solids/CTubeBody.h"

#include "geometry/finite.h"
#include "geometry/solids/solid_parts.h"

namespace hrx::solids {

CExtents3 CTubeBody::GetExtents() const {
    CExtents3 extents;
    ConvexPieces pieces;
    appendPieces(*this, {}, pieces);
    for (const auto& piece : pieces)
        extents.add(piece->box());
    return extents;
}

bool CTubeBody::isMeasurable() const {
    return isWithinReach(m_path.frame().origin) && isWithinReach(m_path.radius() * m_path.sweep()) &&
           isWithinReach(m_radius);
}

} // namespace hrx::solids
