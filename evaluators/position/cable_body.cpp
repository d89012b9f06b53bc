#include "evaluators/position/cable_body.h"

#include "elements/NUXServiceCableObject.h"
#include "geometry/CArc2d.h"
#include "geometry/CPlaneCurve3d.h"
#include "geometry/GBodyBuilder.h"
#include "site/outline_ptr.h"

namespace {

OutlinePtr circularSection(double radius) {
    OutlinePtr section(new hrx::CPolygon());
    section->addLoop(hrx::CCoedgeList(hrx::CArc2d({0.0, 0.0}, radius, 0.0, 6.283185307179586).edges()));
    normaliseOrientation(*section);
    return section;
}

} // namespace

std::unique_ptr<hrx::CBody> buildCableBody(const NUXServiceCableObject& cable) {
    const double startHeight = cable.getServiceCableStartElevation() * 1000.0;
    const double endHeight = cable.getServiceCableEndElevation() * 1000.0;
    const hrx::CVec3<double> start{cable.getStartPt().x, cable.getStartPt().y, startHeight};
    const hrx::CVec3<double> end{cable.getEndPt().x, cable.getEndPt().y, endHeight};
    const double radius = cable.getServiceCableRadius();
    hrx::GBodyBuilder builder(true, true);
    if (cable.m_shapeKind == kStraightShape)
        return std::unique_ptr<hrx::CBody>(builder.CylinderBody(start, end, radius));
    if (cable.m_shapeKind != kArcShape)
        return nullptr;
    const hrx::CVec3<double> middle{cable.getMiddlePt().x, cable.getMiddlePt().y,
                                    (startHeight + endHeight) * 0.5};
    const OutlinePtr section = circularSection(radius);
    return std::unique_ptr<hrx::CBody>(
        builder.SweepBody(section.get(), hrx::CPlaneCurve3d(start, end, middle)));
}
