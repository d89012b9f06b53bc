#include "explain/unjudged_reason.h"

#include "cad/UdDbObject.h"
#include "elements/NUXPrefabHouseObject.h"
#include "elements/NUXRoadObject.h"
#include "explain/Words.h"
#include "geometry/CPolygon.h"
#include "site/bodies.h"
#include "site/host_codes.h"
#include "site/outlines.h"

#include <algorithm>

namespace firestandard {

namespace {

using Points = std::vector<hrx::PolyPt2d>;

double turnOf(const hrx::PolyPt2d& a, const hrx::PolyPt2d& b, const hrx::PolyPt2d& c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

/// Of straight edges; those that only touch do not cross.
bool cross(const hrx::PolyPt2d& a, const hrx::PolyPt2d& b, const hrx::PolyPt2d& c, const hrx::PolyPt2d& d) {
    return turnOf(a, b, c) * turnOf(a, b, d) < 0.0 && turnOf(c, d, a) * turnOf(c, d, b) < 0.0;
}

/// "its outline crosses itself", with the first two straight edges that do; without them for an outline with
/// arcs and for one too long to search.
std::string crossingReason(const Points& points) {
    constexpr std::size_t kLongest = 1000;
    const std::size_t count = points.size();
    const bool isSearched =
        count <= kLongest &&
        std::all_of(points.begin(), points.end(), [](const auto& point) { return point.bulge == 0.0; });
    for (std::size_t i = 0; isSearched && i < count; ++i)
        for (std::size_t j = i + 2; j < count; ++j)
            if (cross(points[i], points[i + 1], points[j], points[(j + 1) % count]))
                return filled(
                    Words::tr("its outline crosses itself: the edge from corner %1 to %2 crosses that "
                              "from %3 to %4"),
                    i + 1, (i + 1) % count + 1, j + 1, (j + 1) % count + 1);
    return filled(Words::tr("its outline crosses itself"));
}

Points pointsOf(const NUXBaseObject& element) {
    Points points;
    element.GetPolyPts(points);
    return points;
}

std::string rectangleFlaw(double length, double depth) {
    if (!(length > 0.0))
        return filled(Words::tr("its length is not above 0"));
    return filled(depth > 0.0 ? Words::tr("its outline has no area") : Words::tr("its depth is not above 0"));
}

std::string outlineFlaw(const NUXBaseObject& element) {
    if (element.m_shapeKind == shape::kRectangle)
        return rectangleFlaw(element.getRectWidthL(), element.getRectHigh());
    if (element.m_shapeKind == shape::kCircle)
        return filled(Words::tr("its radius is not above 0"));
    if (element.m_shapeKind != shape::kPolyline)
        return filled(Words::tr("it has no outline"));
    const std::size_t count = pointsOf(element).size();
    switch (count) {
    case 0:
        return filled(Words::tr("its outline has no points"));
    case 1:
        return filled(Words::tr("its outline has only 1 point"));
    case 2:
        return filled(Words::tr("its outline has only 2 points"));
    default:
        return filled(Words::tr("its outline has no area"));
    }
}

std::string outlineFlaw(const UdDbObject& element) {
    if (NUXRoadObject::Cast(&element))
        return filled(Words::tr("it has no outline with an area"));
    if (const auto* house = NUXPrefabHouseObject::Cast(&element);
        house && house->m_shapeKind == shape::kRectangle) {
        const int stairs = house->getStairPosition();
        if (stairs < stair::kAtLeftEnd || stairs > stair::kAlongSide)
            return filled(Words::tr("its stair code %1 is none of 0 to 4"), stairs);
    }
    const auto* base = NUXBaseObject::Cast(&element);
    return base ? outlineFlaw(*base) : filled(Words::tr("it has no outline"));
}

} // namespace

std::string unjudgedReason(const UdDbObject& element, NotJudged why) {
    const auto* base = NUXBaseObject::Cast(&element);
    switch (why) {
    case NotJudged::NoOutline:
        return outlineFlaw(element);
    case NotJudged::OutlineCrossesItself:
        return crossingReason(base ? pointsOf(*base) : Points());
    case NotJudged::NoCentreLine:
        return filled(Words::tr("the centre line of a road of the site cannot be joined"));
    case NotJudged::OnTheGround:
        return filled(Words::tr("it lies on the ground"));
    case NotJudged::NoRooms:
        return filled(Words::tr("it has no rooms"));
    case NotJudged::NoNeighbour:
        return filled(Words::tr("it has no neighbour with one door"));
    case NotJudged::NothingToCompare:
        return filled(Words::tr("the site has nothing to compare it with"));
    case NotJudged::NeverMeasured:
        return filled(Words::tr("elements of these types are never measured against each other"));
    case NotJudged::OtherUse:
        return filled(Words::tr("it is of another use"));
    case NotJudged::DidNotOpen:
        return filled(Words::tr("it or its door does not open"));
    case NotJudged::NoBoxMeasurable:
        return filled(Words::tr("no extinguisher box has a measurable distance to it, which ends the rule"));
    case NotJudged::RuleEndedBefore:
        return filled(Words::tr("the rule ended at an element before it in the drawing"));
    }
    return {};
}

std::string polylineFlaw(const UdDbObject& element) {
    const auto* base = NUXBaseObject::Cast(&element);
    if (!base || base->m_shapeKind != shape::kPolyline)
        return {};
    const OutlinePtr outline = measuredOutlines(element).footprint;
    if (outline && outline->IsValid(kFiveValidityChecks, nullptr))
        return {};
    return unjudgedReason(element,
                          hasCrossingOutline(base) ? NotJudged::OutlineCrossesItself : NotJudged::NoOutline);
}

bool isLeftOut(NotJudged why) {
    switch (why) {
    case NotJudged::NoOutline:
    case NotJudged::OutlineCrossesItself:
    case NotJudged::NoCentreLine:
    case NotJudged::DidNotOpen:
    case NotJudged::NoBoxMeasurable:
    case NotJudged::RuleEndedBefore:
        return true;
    default:
        return false;
    }
}

} // namespace firestandard
