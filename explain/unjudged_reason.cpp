#include "explain/unjudged_reason.h"

#include "cad/UdDbObject.h"
#include "elements/NUXPrefabHouseObject.h"
#include "elements/NUXRoadObject.h"
#include "geometry/CPolygon.h"
#include "site/bodies.h"
#include "site/host_codes.h"
#include "site/outlines.h"

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

std::string edgeText(std::size_t start, std::size_t count) {
    return std::to_string(start + 1) + " to " + std::to_string((start + 1) % count + 1);
}

/// The first two straight edges that cross; empty for an outline with arcs and for one too long to search.
std::string crossingEdges(const Points& points) {
    constexpr std::size_t kLongest = 1000;
    const std::size_t count = points.size();
    if (count > kLongest)
        return {};
    for (const hrx::PolyPt2d& point : points)
        if (point.bulge != 0.0)
            return {};
    for (std::size_t i = 0; i < count; ++i)
        for (std::size_t j = i + 2; j < count; ++j)
            if (cross(points[i], points[i + 1], points[j], points[(j + 1) % count]))
                return ": the edge from corner " + edgeText(i, count) + " crosses that from " +
                       edgeText(j, count);
    return {};
}

Points pointsOf(const NUXBaseObject& element) {
    Points points;
    element.GetPolyPts(points);
    return points;
}

std::string rectangleFlaw(double length, double depth) {
    if (!(length > 0.0))
        return "its length is not above 0";
    return depth > 0.0 ? "its outline has no area" : "its depth is not above 0";
}

std::string outlineFlaw(const NUXBaseObject& element) {
    if (element.m_shapeKind == shape::kRectangle)
        return rectangleFlaw(element.getRectWidthL(), element.getRectHigh());
    if (element.m_shapeKind == shape::kCircle)
        return "its radius is not above 0";
    if (element.m_shapeKind != shape::kPolyline)
        return "it has no outline";
    const std::size_t count = pointsOf(element).size();
    if (count > 2)
        return "its outline has no area";
    return count == 0 ? "its outline has no points"
                      : "its outline has only " + std::to_string(count) + (count == 1 ? " point" : " points");
}

std::string outlineFlaw(const UdDbObject& element) {
    if (NUXRoadObject::Cast(&element))
        return "it has no outline with an area";
    if (const auto* house = NUXPrefabHouseObject::Cast(&element);
        house && house->m_shapeKind == shape::kRectangle) {
        const int stairs = house->getStairPosition();
        if (stairs < stair::kAtLeftEnd || stairs > stair::kAlongSide)
            return "its stair code " + std::to_string(stairs) + " is none of 0 to 4";
    }
    const auto* base = NUXBaseObject::Cast(&element);
    return base ? outlineFlaw(*base) : "it has no outline";
}

} // namespace

std::string unjudgedReason(const UdDbObject& element, NotJudged why) {
    const auto* base = NUXBaseObject::Cast(&element);
    switch (why) {
    case NotJudged::NoOutline:
        return outlineFlaw(element);
    case NotJudged::OutlineCrossesItself:
        return "its outline crosses itself" + (base ? crossingEdges(pointsOf(*base)) : std::string());
    case NotJudged::NoCentreLine:
        return "the centre line of a road of the site cannot be joined";
    case NotJudged::OnTheGround:
        return "it lies on the ground";
    case NotJudged::NoRooms:
        return "it has no rooms";
    case NotJudged::NoNeighbour:
        return "it has no neighbour with one door";
    case NotJudged::NothingToCompare:
        return "the site has nothing to compare it with";
    case NotJudged::NeverMeasured:
        return "elements of these types are never measured against each other";
    case NotJudged::OtherUse:
        return "it is of another use";
    case NotJudged::DidNotOpen:
        return "it or its door does not open";
    case NotJudged::NoBoxMeasurable:
        return "no extinguisher box has a measurable distance to it, which ends the rule";
    case NotJudged::RuleEndedBefore:
        return "the rule ended at an element before it in the drawing";
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
