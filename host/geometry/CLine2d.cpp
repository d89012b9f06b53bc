#include "geometry/CLine2d.h"

#include "geometry/DistEpsilon.h"

#include <cmath>

namespace hrx {

std::vector<Edge2d> CLine2d::edges() const {
    for (const double coordinate : {m_start.x, m_start.y, m_end.x, m_end.y}) {
        if (!(std::abs(coordinate) <= g_curveCoordinateLimit))
            return {};
    }
    if (std::hypot(m_end.x - m_start.x, m_end.y - m_start.y) <= g_DistEpsilon)
        return {};
    return {Edge2d{m_start, m_end, 0.0}};
}

} // namespace hrx
