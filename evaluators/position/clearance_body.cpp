#include "evaluators/position/clearance_body.h"

#include "elements/NUXRoadObject.h"
#include "geometry/BodyDistance.h"
#include "site/outline_ptr.h"
#include "site/raised_outline.h"

std::unique_ptr<hrx::CExtrudedBody> buildClearanceBody(const NUXRoadObject& road) {
    hrx::CPolygon* outline = road.getRoadPoly();
    if (!outline)
        return nullptr;
    normaliseOrientation(*outline);
    return raisedOutline(outline, kHeadroom);
}

double clearanceDistance(const hrx::CExtrudedBody& clearance, const hrx::CBody& body) {
    hrx::CVec3<double> onClearance;
    hrx::CVec3<double> onBody;
    return hrx::BodyDistance(&clearance, &body, onClearance, onBody, 0.1);
}

bool intrudes(const hrx::CExtrudedBody& clearance, const hrx::CBody& body) {
    return clearanceDistance(clearance, body) <= kTouchDistance;
}
