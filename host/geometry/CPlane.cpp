#include "geometry/CPlane.h"

#include "geometry/finite.h"

namespace hrx {

bool CPlane::CreateByPoints(const CVec3<double>* points, int count) {
    if (count < 3)
        return false;
    // Twice the area of the outline through the points, as a vector (Newell): the normal of a best fit.
    CVec3<double> normal;
    CVec3<double> along;
    double size = 0.0;
    for (int i = 0; i < count; ++i) {
        const CVec3<double> from = points[i] - points[0];
        const CVec3<double> to = points[(i + 1) % count] - points[0];
        normal = normal + cross(from, to);
        if (along == CVec3<double>())
            along = from;
        size = std::max(size, dot(from, from));
    }
    const double area = length(normal);
    if (!(area > 1e-12 * size) || !std::isfinite(area))
        return false;
    const CVec3<double> zAxis = normal * (1.0 / area);
    const CVec3<double> inPlane = along - zAxis * dot(along, zAxis);
    const CVec3<double> xAxis = inPlane * (1.0 / length(inPlane));
    if (!isFinite(xAxis))
        return false;
    m_frame = {points[0], xAxis, cross(zAxis, xAxis), zAxis};
    return true;
}

} // namespace hrx
