#include "elements/NUX3dsBaseObject.h"

std::optional<hrx::CExtents3> NUX3dsBaseObject::geometryExtents() const {
    hrx::CExtents3 extents;
    extents.add(GetPosition());
    return extents;
}
