#include "geometry/CPolygon.h"

namespace hrx {

CPolygon::CPolygon(const std::vector<CVec2<double>>& corners) {
    if (!corners.empty())
        m_loops.emplace_back(corners);
}

CPolygon::CPolygon(std::initializer_list<CVec2<double>> corners) {
    if (corners.size() > 0)
        m_loops.emplace_back(corners.begin(), corners.size());
}

CPolygon::CPolygon(const std::vector<PolyPt2d>& points) {
    if (!points.empty())
        m_loops.emplace_back(points);
}

CPolygon::CPolygon(const std::vector<CCoedgeList>& loops) : m_loops(loops.begin(), loops.end()) {}

const CCoedgeList* CPolygon::GetLoop(std::size_t index) const {
    return index < m_loops.size() ? &m_loops[index] : nullptr;
}

void CPolygon::Reverse() {
    for (CCoedgeList& loop : m_loops)
        loop.Reverse();
}

void CPolygon::Free() {
    if (m_references == 0)
        delete this;
}

} // namespace hrx
