#include "evaluators/position/headroom_bodies.h"

#include "elements/NUXPosterObject.h"
#include "elements/NUXRoadObject.h"
#include "elements/NUXServiceCableObject.h"
#include "evaluators/rule_catalogue.h"
#include "geometry/CArc2d.h"
#include "geometry/CPlane.h"
#include "geometry/CPlaneCurve3d.h"
#include "geometry/CreatePolygon.h"
#include "geometry/GBodyBuilder.h"
#include "site/bodies.h"
#include "site/host_codes.h"
#include "site/outlines.h"

namespace firestandard {

namespace {

constexpr int kStandingPlate = 1;
constexpr int kRaisedSheet = 2;
constexpr double kPlateThickness = 1.0;

// Deliberate: the elevation is in metres and scaled, the height is not; drawings hold both so.
double bottomOf(const NUXPosterObject& poster) {
    return poster.getElevation() * kMillimetresPerMetre;
}

std::unique_ptr<hrx::CExtrudedBody> raisedSheet(const NUXPosterObject& poster) {
    const hrx::CVec2<double> first = poster.getFirstPoint();
    const hrx::CVec2<double> second = poster.getSecondPoint();
    const std::vector<hrx::PolyPt2d> points{{first.x, first.y, 0.0}, {second.x, second.y, 0.0}};
    OutlinePtr outline(new hrx::CPolygon(points));
    normaliseOrientation(*outline);
    return raisedOutline(outline.release(), poster.getHeight(), bottomOf(poster));
}

std::unique_ptr<hrx::CExtrudedBody> standingPlate(const NUXPosterObject& poster) {
    const hrx::CVec2<double> first = poster.getFirstPoint();
    const hrx::CVec2<double> second = poster.getSecondPoint();
    const double bottom = bottomOf(poster);
    const double top = bottom + poster.getHeight();
    const hrx::CVec3<double> points[] = {{first.x, first.y, bottom},
                                         {second.x, second.y, bottom},
                                         {second.x, second.y, top},
                                         {first.x, first.y, top}};
    hrx::CPlane plane;
    if (!plane.CreateByPoints(points, 4))
        return nullptr;
    OutlinePtr outline(hrx::CreatePolygon(points, 4, true, plane));
    if (!outline)
        return nullptr;
    normaliseOrientation(*outline);
    return std::make_unique<hrx::CExtrudedBody>(plane.GetCoordinate(), kPlateThickness, outline.release(),
                                                true);
}

OutlinePtr circularSection(double radius) {
    OutlinePtr section(new hrx::CPolygon());
    section->addLoop(hrx::CCoedgeList(hrx::CArc2d({0.0, 0.0}, radius, 0.0, 6.283185307179586).edges()));
    normaliseOrientation(*section);
    return section;
}

} // namespace

std::unique_ptr<hrx::CExtrudedBody> buildClearanceBody(const NUXRoadObject& road) {
    hrx::CPolygon* outline = road.getRoadPoly();
    if (!outline)
        return nullptr;
    normaliseOrientation(*outline);
    return raisedOutline(outline, kHeadroom);
}

std::unique_ptr<hrx::CExtrudedBody> buildPosterBody(const NUXPosterObject& poster) {
    switch (poster.getDrawType()) {
    case kStandingPlate:
        return standingPlate(poster);
    case kRaisedSheet:
        return raisedSheet(poster);
    default:
        return nullptr;
    }
}

bool isFitForMeasuring(const NUXPosterObject& poster, const hrx::CExtrudedBody& clearance,
                       const hrx::CExtrudedBody& posterBody) {
    return poster.getDrawType() != kRaisedSheet || (clearance.IsValid(kFiveValidityChecks, nullptr) &&
                                                    posterBody.IsValid(kFiveValidityChecks, nullptr));
}

std::unique_ptr<hrx::CBody> buildCableBody(const NUXServiceCableObject& cable) {
    const double startHeight = cable.getServiceCableStartElevation() * kMillimetresPerMetre;
    const double endHeight = cable.getServiceCableEndElevation() * kMillimetresPerMetre;
    const hrx::CVec3<double> start{cable.getStartPt().x, cable.getStartPt().y, startHeight};
    const hrx::CVec3<double> end{cable.getEndPt().x, cable.getEndPt().y, endHeight};
    const double radius = cable.getServiceCableRadius();
    hrx::GBodyBuilder builder(true, true);
    if (cable.m_shapeKind == shape::kStraight)
        return std::unique_ptr<hrx::CBody>(builder.CylinderBody(start, end, radius));
    if (cable.m_shapeKind != shape::kArc)
        return nullptr;
    const hrx::CVec3<double> middle{cable.getMiddlePt().x, cable.getMiddlePt().y,
                                    (startHeight + endHeight) * 0.5};
    const OutlinePtr section = circularSection(radius);
    return std::unique_ptr<hrx::CBody>(
        builder.SweepBody(section.get(), hrx::CPlaneCurve3d(start, end, middle)));
}

} // namespace firestandard
