#include "geometry/CCoedgeList.h"

#include "geometry/DistEpsilon.h"

#include <algorithm>
#include <cmath>

namespace hrx {

namespace {

/// Area between an arc and its chord, positive counter-clockwise: R^2 / 2 (sweep - sin sweep), written in the
/// bulge; near 0 its series, where the closed form cancels.
double segmentArea(const Edge2d& edge) {
    const CVec2<double> chord = edge.end - edge.start;
    const double b = edge.bulge;
    const double squared = b * b;
    const double factor =
        std::abs(b) < 0.02
            ? b * (1.0 / 3.0 + squared * (1.0 / 15.0 - squared / 105.0))
            : ((1.0 + squared) * (1.0 + squared) * std::atan(b) - b * (1.0 - squared)) / (8.0 * squared);
    return dot(chord, chord) * factor;
}

} // namespace

CCoedgeList::CCoedgeList(const std::vector<CVec2<double>>& corners)
    : CCoedgeList(corners.data(), corners.size()) {}

CCoedgeList::CCoedgeList(const CVec2<double>* corners, std::size_t count) {
    if (count > 1 && corners[0] == corners[count - 1])
        --count;
    m_edges.resize(count, boost::container::default_init);
    for (std::size_t i = 0; i < count; ++i)
        m_edges[i] = {corners[i], corners[i + 1 < count ? i + 1 : 0], 0.0};
}

CCoedgeList::CCoedgeList(const std::vector<PolyPt2d>& points) {
    m_edges.reserve(points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        const PolyPt2d& from = points[i];
        const PolyPt2d& to = points[i + 1 < points.size() ? i + 1 : 0];
        m_edges.push_back({{from.x, from.y}, {to.x, to.y}, from.bulge});
    }
}

int CCoedgeList::ClockSign() const {
    const double area = signedArea();
    if (!(std::abs(area) > g_DistEpsilon * girth()))
        return 0;
    return area > 0.0 ? 1 : -1;
}

double CCoedgeList::signedArea() const {
    if (m_edges.empty())
        return 0.0;
    const CVec2<double> origin = m_edges.front().start;
    double area = 0.0;
    for (const Edge2d& edge : m_edges) {
        area += 0.5 * cross(edge.start - origin, edge.end - origin);
        if (edge.bulge != 0.0)
            area += segmentArea(edge);
    }
    return area;
}

double CCoedgeList::girth() const {
    double sum = 0.0;
    for (const Edge2d& edge : m_edges)
        sum += (std::abs(edge.end.x - edge.start.x) + std::abs(edge.end.y - edge.start.y)) *
               (1.0 + std::abs(edge.bulge));
    return sum;
}

void CCoedgeList::Reverse() {
    std::reverse(m_edges.begin(), m_edges.end());
    for (Edge2d& edge : m_edges)
        edge = edge.reversed();
}

} // namespace hrx
