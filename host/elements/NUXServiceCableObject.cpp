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

hrx::CExtents3 cableExtents(const NUXServiceCableParams& params) {
    const double startZ = params.startElevation * 1000.0;
    const double endZ = params.endElevation * 1000.0;
    const double radius = params.radius;
    const hrx::CVec3<double> start{params.start.x, params.start.y, startZ};
    const hrx::CVec3<double> end{params.end.x, params.end.y, endZ};
    const hrx::CVec3<double> middle{params.middle.x, params.middle.y, (startZ + endZ) * 0.5};
    if (const auto body = cableBody(params.shapeKind, start, end, middle, radius))
        return body->GetExtents();

    hrx::CExtents3 extents;
    for (const hrx::CVec3<double>& point : {start, end}) {
        extents.add({point.x - radius, point.y - radius, point.z - radius});
        extents.add({point.x + radius, point.y + radius, point.z + radius});
    }
    return extents;
}

} // namespace

NUXServiceCableObject::NUXServiceCableObject(const NUXServiceCableParams& params, std::wstring typeIdentifier)
    : NUXBaseObject(kClassBit, std::move(typeIdentifier), params), m_isStraight(params.isStraight),
      m_start(params.start), m_end(params.end), m_middle(params.middle),
      m_startElevation(params.startElevation), m_endElevation(params.endElevation), m_radius(params.radius),
      m_extents(cableExtents(params)) {}
