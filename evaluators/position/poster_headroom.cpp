#include "evaluators/position/poster_headroom.h"

#include "elements/NUXPosterObject.h"
#include "evaluators/position/clearance_body.h"
#include "geometry/CPlane.h"
#include "geometry/CreatePolygon.h"
#include "site/outline_ptr.h"
#include "site/raised_outline.h"

namespace {

constexpr int kStandingPlate = 1;
constexpr int kRaisedSheet = 2;
constexpr double kPlateThickness = 1.0;
const std::bitset<16> kValidityChecks(0x1f);

// Deliberate: the elevation is in metres and scaled, the height is not.
double bottomOf(const NUXPosterObject& poster) {
    return poster.getElevation() * 1000.0;
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

} // namespace

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

bool posterIntrudes(const NUXPosterObject& poster, const hrx::CExtrudedBody& clearance,
                    const hrx::CExtrudedBody& posterBody) {
    if (poster.getDrawType() == kRaisedSheet &&
        !(clearance.IsValid(kValidityChecks, nullptr) && posterBody.IsValid(kValidityChecks, nullptr)))
        return false;
    return intrudes(clearance, posterBody);
}
