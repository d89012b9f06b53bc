#include "geometry/CExtrudedBody.h"

#include "geometry/DistEpsilon.h"
#include "geometry/finite.h"
#include "geometry/plan/outline_shape.h"
#include "geometry/solids/PrismPiece.h"
#include "geometry/solids/standing_plate.h"

#include <algorithm>
#include <cmath>
#include <ostream>

namespace hrx {

namespace {

bool standsInWorldPlan(const CCoord3<double>& frame) {
    return frame.xAxis.x == 1.0 && frame.xAxis.y == 0.0 && frame.yAxis.x == 0.0 && frame.yAxis.y == 1.0 &&
           frame.origin.x == 0.0 && frame.origin.y == 0.0;
}

bool isUpright(const CCoord3<double>& frame) {
    return frame.zAxis.x == 0.0 && frame.zAxis.y == 0.0 && frame.xAxis.z == 0.0 && frame.yAxis.z == 0.0;
}

} // namespace

CExtrudedBody::CExtrudedBody(const CCoord3<double>& frame, double height, CPolygon* outline, bool)
    : m_frame(frame), m_height(height), m_outline(outline) {
    if (!m_outline)
        return;
    if (isUpright(m_frame)) {
        m_plan = standsInWorldPlan(m_frame) ? m_outline : PolygonRef(plan::movedToPlan(*m_outline, m_frame));
        const double base = m_frame.origin.z;
        const double top = base + m_frame.zAxis.z * m_height;
        m_low = std::min(base, top);
        m_high = std::max(base, top);
    } else if (const auto plate = solids::standingPlate(m_frame, m_height, *m_outline)) {
        m_plan = plate->plan;
        m_low = plate->low;
        m_high = plate->high;
    }
}

CExtents3 CExtrudedBody::GetExtents() const {
    CExtents3 extents;
    if (!m_outline)
        return extents;
    solids::PrismPiece hull(m_frame, m_height);
    bool empty = true;
    for (const CCoedgeList& loop : m_outline->loops())
        for (const Edge2d& edge : loop.edges()) {
            hull.add(edge);
            empty = false;
        }
    return empty ? extents : hull.box();
}

bool CExtrudedBody::isStrictlyValid() const {
    return isFinite(m_frame) && std::isfinite(m_height) && std::abs(m_height) > g_DistEpsilon && m_outline &&
           m_outline->isStrictlyValid();
}

bool CExtrudedBody::IsValid(const std::bitset<16>& checks, std::ostream* log) const {
    if (!isFinite(m_frame) || !std::isfinite(m_height)) {
        if (log)
            *log << "extrusion: the frame or the height is not finite\n";
        return false;
    }
    if (!m_outline) {
        if (log)
            *log << "extrusion: no outline\n";
        return false;
    }
    return m_outline->IsValid(checks, log);
}

bool CExtrudedBody::isMeasurable() const {
    return m_outline && plan::isWithinReach(*m_outline) && isWithinReach(m_height) &&
           isWithinReach(m_frame.origin) && isWithinReach(m_frame.xAxis) && isWithinReach(m_frame.yAxis) &&
           isWithinReach(m_frame.zAxis);
}

} // namespace hrx
