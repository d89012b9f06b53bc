#include "evaluators/self/road_network.h"

#include "cad/UdDbBlock.h"
#include "elements/NUXBuildPolygon.h"
#include "elements/NUXRoadObject.h"
#include "evaluators/rule_catalogue.h"
#include "geometry/CArc2d.h"
#include "geometry/CLine2d.h"
#include "geometry/CLoopTreeNode.h"
#include "geometry/CPositionJudge.h"
#include "geometry/Curve2dlistToCoedgelists.h"
#include "site/element_type_identifiers.h"
#include "site/host_codes.h"
#include "site/model_space_walk.h"
#include "site/outlines.h"

#include <algorithm>
#include <utility>

using namespace firestandard;

namespace {

// The position value of two outlines that share a point of their boundaries.
constexpr int kOutlinesMeet = 0;
// The state of curves that could all be taken up.
constexpr int kJoined = 0;

/// An outline that the host fills in or replaces; released here unless taken.
struct OutlineToFill {
    hrx::CPolygon* outline = new hrx::CPolygon();

    OutlineToFill() = default;
    OutlineToFill(const OutlineToFill&) = delete;
    OutlineToFill& operator=(const OutlineToFill&) = delete;
    ~OutlineToFill() {
        if (outline)
            outline->Free();
    }
    OutlinePtr take() { return OutlinePtr(std::exchange(outline, nullptr)); }
};

/// Outlines that the host makes and the caller releases.
struct OwnedFaces {
    std::vector<hrx::CPolygon*> outlines;

    OwnedFaces() = default;
    OwnedFaces(const OwnedFaces&) = delete;
    OwnedFaces& operator=(const OwnedFaces&) = delete;
    ~OwnedFaces() {
        for (hrx::CPolygon* outline : outlines)
            outline->Free();
    }
};

OutlinePtr outlineOf(const NUXRoadObject& road, bool isStraight) {
    OutlineToFill filled;
    const double width = road.getWidth();
    if (isStraight)
        NUXBuildPolygon::buildLinePolgonAsTwoPt(filled.outline, road.getOriginalStartPt(),
                                                road.getOriginalEndPt(), width);
    else
        NUXBuildPolygon::buildArcPolygon(filled.outline, road.getOriginalStartPt(), road.getOriginalEndPt(),
                                         road.getOriginalRefPt(), width, 0.0);
    return filled.take();
}

/// No road at all passes, one alone never does.
bool roadsFormLoop(const Roads& roads) {
    std::size_t meetingPairs = 0;
    for (std::size_t i = 0; i < roads.size(); ++i) {
        // Deliberate: the kind of the earlier road decides how the outlines of both are built. Networks of
        // straight and curved roads in existing drawings are judged so.
        const bool isStraight = roads[i]->m_shapeKind == shape::kStraight;
        const OutlinePtr outline = outlineOf(*roads[i], isStraight);
        for (std::size_t j = i + 1; j < roads.size(); ++j) {
            const OutlinePtr other = outlineOf(*roads[j], isStraight);
            if (hrx::CPositionJudge().GetPolygonPosition(outline.get(), other.get()) == kOutlinesMeet)
                ++meetingPairs;
        }
    }
    return meetingPairs >= roads.size();
}

bool coincide(const hrx::CVec2<double>& a, const hrx::CVec2<double>& b) {
    const double dx = a.x - b.x;
    const double dy = a.y - b.y;
    return dx * dx + dy * dy <= kCoincidentSquared;
}

/// Deliberate: curves that could not be joined are not judged and pass, as they always have.
bool curvesFormClosedLoop(const Curves& curves) {
    return loopStateOf(curves) != LoopState::Open;
}

} // namespace

namespace firestandard {

Roads identifiedRoads(const UdDbBlock& modelSpace) {
    Roads roads;
    walkModelSpace(modelSpace, [&](const UdDbObject* object) {
        const auto* element = NUXElementObject::Cast(object);
        if (!element || element->getElementType() != NUX_EDO_TYPE_ROAD)
            return;
        if (const auto* road = NUXRoadObject::Cast(element))
            roads.push_back(road);
    });
    return roads;
}

Roads identifiedFireRoads(const UdDbBlock& modelSpace) {
    Roads roads = identifiedRoads(modelSpace);
    const auto isOrdinary = [](const NUXRoadObject* road) { return !road->getIsFireRoad(); };
    roads.erase(std::remove_if(roads.begin(), roads.end(), isOrdinary), roads.end());
    return roads;
}

std::unique_ptr<hrx::CCurve2d> centreLine(const NUXRoadObject& road) {
    const hrx::CVec2<double> start = road.getOriginalStartPt();
    const hrx::CVec2<double> end = road.getOriginalEndPt();
    if (road.m_shapeKind == shape::kStraight)
        return std::make_unique<hrx::CLine2d>(start, end);
    const hrx::CVec2<double> reference = road.getOriginalRefPt();
    if (coincide(start, end) && coincide(start, reference))
        return nullptr;
    return std::make_unique<hrx::CArc2d>(start, end, reference);
}

LoopState loopStateOf(const Curves& curves) {
    std::vector<hrx::CCoedgeList> coedgeLists;
    if (hrx::Curve2dlistToCoedgelists(curves, coedgeLists, kJoiningTolerance) != kJoined)
        return LoopState::NotJoined;

    OwnedFaces faces;
    const bool hasFaces = hrx::CLoopTreeNode::GenPolygonListByCoedgeList(coedgeLists, faces.outlines);
    const bool isClosed = hasFaces && std::any_of(faces.outlines.begin(), faces.outlines.end(),
                                                  [](const hrx::CPolygon* outline) {
                                                      return outline->IsValid(kFiveValidityChecks, nullptr);
                                                  });
    return isClosed ? LoopState::Closed : LoopState::Open;
}

} // namespace firestandard

bool isFireRoadLoopClosed(const UdDbBlock& modelSpace) {
    return roadsFormLoop(identifiedFireRoads(modelSpace));
}

bool isRoadLoopClosed(const UdDbBlock& modelSpace) {
    const Roads roads = identifiedRoads(modelSpace);
    Curves curves;
    for (const NUXRoadObject* road : roads)
        if (auto curve = centreLine(*road))
            curves.push_back(std::move(curve));
    return roads.empty() || curvesFormClosedLoop(curves);
}
