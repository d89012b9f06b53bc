#include "geometry/solids/PlaneHull.h"

namespace hrx::solids {

void PlaneHull::add(const Edge2d& edge) {
    if (m_corners.empty() || m_corners.back() != edge.start)
        m_corners.push_back(edge.start);
    if (m_corners.front() != edge.end)
        m_corners.push_back(edge.end);
    if (edge.isArc())
        m_arcs.emplace_back(edge);
}

CVec2<double> PlaneHull::support(const CVec2<double>& direction) const {
    const CVec2<double> origin = m_corners.front();
    CVec2<double> best = origin;
    double reach = 0.0;
    const auto keepFurther = [&](const CVec2<double>& point) {
        const double pointReach = dot(point - origin, direction);
        if (pointReach > reach) {
            reach = pointReach;
            best = point;
        }
    };
    for (const CVec2<double>& corner : m_corners)
        keepFurther(corner);
    const double size = m_arcs.empty() ? 0.0 : length(direction);
    if (size > 0.0)
        for (const plan::ArcFrame& arc : m_arcs) {
            const CVec2<double> local = arc.directionToLocal(direction * (1.0 / size));
            if (arc.spansDirection(local))
                keepFurther(arc.toWorld(arc.pointInDirection(local)));
        }
    return best;
}

} // namespace hrx::solids
