#include "geometry/CPlaneCurve3d.h"

#include "geometry/DistEpsilon.h"
#include "geometry/finite.h"

#include <algorithm>
#include <limits>

namespace hrx {

namespace {

double largestCoordinate(const CVec3<double>& v) {
    return std::max({std::abs(v.x), std::abs(v.y), std::abs(v.z)});
}

} // namespace

CPlaneCurve3d::CPlaneCurve3d(const CVec3<double>& start, const CVec3<double>& end,
                             const CVec3<double>& through) {
    if (!isFinite(start) || !isFinite(end) || !isFinite(through))
        return;
    const CVec3<double> u = through - start;
    const CVec3<double> v = end - start;
    const double uu = dot(u, u);
    const double vv = dot(v, v);
    // By rounding the product of all but parallel sides leans along them, and the arc would with it.
    const CVec3<double> product = cross(u, v);
    const CVec3<double> normal = product - v * (dot(product, v) / vv);
    const double area = length(normal);
    const double longestSide = std::sqrt(std::max({uu, vv, dot(v - u, v - u)}));
    // Points this near to one line cannot be told from it.
    const double largest =
        std::max({largestCoordinate(start), largestCoordinate(end), largestCoordinate(through)});
    const double resolution = std::max(g_DistEpsilon, 4.0 * std::numeric_limits<double>::epsilon() * largest);
    if (!(area > resolution * longestSide) || !std::isfinite(area))
        return;
    // Circumcentre of a triangle, seen from one corner.
    const CVec3<double> toCentre = (cross(normal, u) * vv + cross(v, normal) * uu) * (0.5 / (area * area));
    const double radius = length(toCentre);
    if (!isFinite(toCentre) || !(radius > 0.0))
        return;
    // Through lies on the arc, so start, through, end run counter-clockwise about u x v.
    m_radius = radius;
    m_frame.origin = start;
    m_frame.zAxis = normal * (1.0 / area);
    m_frame.xAxis = toCentre * (-1.0 / radius);
    m_frame.yAxis = cross(m_frame.zAxis, m_frame.xAxis);
    const CVec3<double> last = m_frame.toLocal(end);
    m_sweep = std::atan2(last.y, radius + last.x);
    if (m_sweep <= 0.0)
        m_sweep += 6.283185307179586;
}

} // namespace hrx
