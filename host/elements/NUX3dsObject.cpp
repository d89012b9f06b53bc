#include "elements/NUX3dsObject.h"

#include "elements/rectangle_corners.h"

std::optional<hrx::CExtents3> NUX3dsObject::geometryExtents() const {
    const hrx::CVec3<double> position = GetPosition();
    hrx::CExtents3 extents;
    const NUXRectParam footprint({position.x, position.y}, m_length, m_depth, getAngle());
    for (const hrx::CVec2<double>& corner : referencehost::rectangleCorners(footprint)) {
        extents.add({corner.x, corner.y, position.z});
        extents.add({corner.x, corner.y, position.z + m_height});
    }
    return extents;
}
