#include "elements/NUXBuildPolygon.h"
#include "elements/NUXRoadObject.h"
#include "evaluators/self/NUXElementTypeRule.h"
#include "evaluators/self/identified_roads.h"
#include "geometry/CPositionJudge.h"
#include "site/CheckObserver.h"
#include "site/outline_ptr.h"

#include <algorithm>

namespace {

// The position value of two outlines that share a point of their boundaries.
constexpr int kOutlinesMeet = 0;

OutlinePtr outlineOf(const NUXRoadObject& road, bool isStraight) {
    auto* polygon = new hrx::CPolygon();
    const double width = road.getWidth();
    if (isStraight)
        NUXBuildPolygon::buildLinePolgonAsTwoPt(polygon, road.getOriginalStartPt(), road.getOriginalEndPt(),
                                                width);
    else
        NUXBuildPolygon::buildArcPolygon(polygon, road.getOriginalStartPt(), road.getOriginalEndPt(),
                                         road.getOriginalRefPt(), width, 0.0);
    return OutlinePtr(polygon);
}

} // namespace

bool NUXElementTypeRule::isFireRoadLoopClosed(const UdDbBlock& modelSpace) {
    std::vector<const NUXRoadObject*> roads = identifiedRoads(modelSpace);
    const auto isOrdinary = [](const NUXRoadObject* road) { return !road->getIsFireRoad(); };
    roads.erase(std::remove_if(roads.begin(), roads.end(), isOrdinary), roads.end());
    for (const NUXRoadObject* road : roads)
        observeFound(*road);
    return roadsFormLoop(roads);
}

bool NUXElementTypeRule::roadsFormLoop(std::vector<const NUXRoadObject*> roads) {
    std::size_t meetingPairs = 0;
    for (std::size_t i = 0; i < roads.size(); ++i) {
        // Deliberate: the kind of the earlier road decides how the outlines of both are built.
        const bool isStraight = roads[i]->m_shapeKind == kStraightShape;
        const OutlinePtr outline = outlineOf(*roads[i], isStraight);
        for (std::size_t j = i + 1; j < roads.size(); ++j) {
            const OutlinePtr other = outlineOf(*roads[j], isStraight);
            if (hrx::CPositionJudge().GetPolygonPosition(outline.get(), other.get()) == kOutlinesMeet)
                ++meetingPairs;
        }
    }
    // No road at all passes, one alone never does.
    return meetingPairs >= roads.size();
}
