#include "geometry/CExtrudedBody.h"

#include "geometry/DistEpsilon.h"

#include <cmath>
#include <ostream>

namespace hrx {

namespace {

constexpr unsigned long kEveryCheck = 0x1f;

bool isFinite(const CVec3<double>& v) {
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

bool isFinite(const CCoord3<double>& frame) {
    return isFinite(frame.origin) && isFinite(frame.xAxis) && isFinite(frame.yAxis) && isFinite(frame.zAxis);
}

} // namespace

CExtrudedBody::CExtrudedBody(const CCoord3<double>& frame, double height, CPolygon* outline, bool)
    : m_frame(frame), m_height(height), m_outline(outline) {}

CExtents3 CExtrudedBody::GetExtents() const {
    CExtents3 extents;
    if (!m_outline)
        return extents;
    for (const CCoedgeList& loop : m_outline->loops())
        for (const Edge2d& edge : loop.edges())
            extents.add(m_frame.toWorld({edge.start.x, edge.start.y, 0.0}));
    return extents;
}

bool CExtrudedBody::isStrictlyValid() const {
    return IsValid(kEveryCheck, nullptr) && std::abs(m_height) > g_DistEpsilon;
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

} // namespace hrx
