#include "elements/NUXPosterObject.h"

std::optional<hrx::CExtents3> NUXPosterObject::geometryExtents() const {
    const double bottom = m_params.elevation * 1000.0;
    hrx::CExtents3 extents;
    extents.add({m_params.firstPoint.x, m_params.firstPoint.y, bottom});
    extents.add({m_params.secondPoint.x, m_params.secondPoint.y, bottom + m_params.height});
    return extents;
}
