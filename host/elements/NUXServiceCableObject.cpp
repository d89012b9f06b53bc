#include "elements/NUXServiceCableObject.h"

#include "geometry/CPlaneCurve3d.h"
#include "geometry/CPolygon.h"
#include "geometry/GBodyBuilder.h"

namespace {

std::unique_ptr<hrx::CBody> cableBody(std::uint32_t shapeKind, const hrx::CVec3<double>& start,
                                      const hrx::CVec3<double>& end, const hrx::CVec3<double>& middle,
                                      double radius) {
    hrx::GBodyBuilder builder(true, true);
    if (shapeKind == kStraightShape)
        return std::unique_ptr<hrx::CBody>(builder.CylinderBody(start, end, radius));
    if (shapeKind != kArcShape)
        return nullptr;
    const std::vector<hrx::PolyPt2d> circle{{-radius, 0.0, 1.0}, {radius, 0.0, 1.0}};
    const hrx::PolygonRef section(new hrx::CPolygon(circle));
    return std::unique_ptr<hrx::CBody>(
        builder.SweepBody(section.get(), hrx::CPlaneCurve3d(start, end, middle)));
}

} // namespace

std::optional<hrx::CExtents3> NUXServiceCableObject::geometryExtents() const {
    const double startZ = m_startElevation * 1000.0;
    const double endZ = m_endElevation * 1000.0;
    const hrx::CVec3<double> start{m_start.x, m_start.y, startZ};
    const hrx::CVec3<double> end{m_end.x, m_end.y, endZ};
    const hrx::CVec3<double> middle{m_middle.x, m_middle.y, (startZ + endZ) * 0.5};
    if (const auto body = cableBody(m_shapeKind, start, end, middle, m_radius))
        return body->GetExtents();

    hrx::CExtents3 extents;
    for (const hrx::CVec3<double>& point : {start, end}) {
        extents.add({point.x - m_radius, point.y - m_radius, point.z - m_radius});
        extents.add({point.x + m_radius, point.y + m_radius, point.z + m_radius});
    }
    return extents;
}
