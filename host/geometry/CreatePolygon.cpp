#include "geometry/CreatePolygon.h"

#include "geometry/CPlane.h"
#include "geometry/CPolygon.h"

namespace hrx {

CPolygon* CreatePolygon(const CVec3<double>* points, int count, bool closed, const CPlane& plane) {
    if (count < 3 || !closed)
        return nullptr;
    std::vector<CVec2<double>> corners;
    corners.reserve(static_cast<std::size_t>(count));
    const CCoord3<double> frame = plane.GetCoordinate();
    for (int i = 0; i < count; ++i) {
        const CVec3<double> local = frame.toLocal(points[i]);
        corners.emplace_back(local.x, local.y);
    }
    return new CPolygon(corners);
}

} // namespace hrx
