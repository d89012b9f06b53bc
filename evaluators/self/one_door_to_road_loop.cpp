#include "elements/NUXRoadObject.h"
#include "evaluators/self/NUXElementTypeRule.h"
#include "evaluators/self/identified_roads.h"
#include "geometry/CArc2d.h"
#include "geometry/CLine2d.h"
#include "geometry/CLoopTreeNode.h"
#include "geometry/Curve2dlistToCoedgelists.h"
#include "site/CheckObserver.h"
#include "site/outline_ptr.h"

#include <algorithm>
#include <bitset>

namespace {

constexpr double kJoiningTolerance = 200.0;                  // millimetres
constexpr double kCoincidentSquared = 4.930380657631324e-32; // the square of the double epsilon
constexpr int kJoined = 0;
const std::bitset<16> kValidityChecks(0x1F);

bool coincide(const hrx::CVec2<double>& a, const hrx::CVec2<double>& b) {
    const double dx = a.x - b.x;
    const double dy = a.y - b.y;
    return dx * dx + dy * dy <= kCoincidentSquared;
}

/// Null for an arc road whose three points coincide; a straight road always has a centre line.
std::unique_ptr<hrx::CCurve2d> centreLine(const NUXRoadObject& road) {
    const hrx::CVec2<double> start = road.getOriginalStartPt();
    const hrx::CVec2<double> end = road.getOriginalEndPt();
    if (road.m_shapeKind == kStraightShape)
        return std::make_unique<hrx::CLine2d>(start, end);
    const hrx::CVec2<double> reference = road.getOriginalRefPt();
    if (coincide(start, end) && coincide(start, reference))
        return nullptr;
    return std::make_unique<hrx::CArc2d>(start, end, reference);
}

} // namespace

bool NUXElementTypeRule::isRoadLoopClosed(const UdDbBlock& modelSpace) {
    const std::vector<const NUXRoadObject*> roads = identifiedRoads(modelSpace);
    if (roads.empty())
        return true;
    Curves curves;
    for (const NUXRoadObject* road : roads) {
        observeFound(*road);
        if (auto curve = centreLine(*road))
            curves.push_back(std::move(curve));
    }
    return curvesFormClosedLoop(curves);
}

bool NUXElementTypeRule::curvesFormClosedLoop(const Curves& curves) {
    std::vector<hrx::CCoedgeList> coedgeLists;
    // Deliberate: curves that could not be joined are not judged.
    if (hrx::Curve2dlistToCoedgelists(curves, coedgeLists, kJoiningTolerance) != kJoined)
        return true;

    std::vector<hrx::CPolygon*> polygons;
    const bool hasPolygons = hrx::CLoopTreeNode::GenPolygonListByCoedgeList(coedgeLists, polygons);
    const std::vector<OutlinePtr> outlines(polygons.begin(), polygons.end());
    return hasPolygons && std::any_of(outlines.begin(), outlines.end(), [](const OutlinePtr& outline) {
               return outline->IsValid(kValidityChecks, nullptr);
           });
}
