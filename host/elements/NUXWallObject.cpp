#include "elements/NUXWallObject.h"

std::optional<hrx::CExtents3> NUXWallObject::geometryExtents() const {
    hrx::CExtents3 extents;
    extents.add({m_start.x, m_start.y, 0.0});
    extents.add({m_end.x, m_end.y, 0.0});
    return extents;
}
