#include "report/plan/plan_shapes.h"

#include "elements/NUX3dsBaseObject.h"
#include "elements/NUXCloseHouseObject.h"
#include "elements/NUXDoorObject.h"
#include "elements/NUXOpenHouseObject.h"
#include "elements/NUXPosterObject.h"
#include "elements/NUXPrefabHouseObject.h"
#include "elements/NUXRoadObject.h"
#include "elements/NUXServiceCableObject.h"
#include "elements/NUXTowerCraneObject.h"
#include "elements/NUXWallObject.h"
#include "elements/NUXYardObject.h"
#include "evaluators/CheckObserver.h"
#include "geometry/CArc2d.h"
#include "geometry/CBody.h"
#include "geometry/CPolygon.h"
#include "geometry/finite.h"
#include "site/element_type_identifiers.h"

#include <algorithm>
#include <cmath>

namespace firecheck {

namespace {

using Paths = std::vector<PlanPath>;

void appendOutline(const hrx::CPolygon* outline, Paths& paths) {
    if (!outline)
        return;
    for (const hrx::CCoedgeList& loop : outline->loops())
        paths.push_back({{loop.edges().begin(), loop.edges().end()}, true});
}

void appendBox(const hrx::CExtents3& extents, Paths& paths) {
    if (extents.isEmpty())
        return;
    const auto& [low, high] = extents;
    const std::vector<hrx::CVec2<double>> corners{
        {low.x, low.y}, {high.x, low.y}, {high.x, high.y}, {low.x, high.y}};
    const hrx::CCoedgeList loop(corners);
    paths.push_back({{loop.edges().begin(), loop.edges().end()}, true});
}

void appendLine(const hrx::CVec2<double>& start, const hrx::CVec2<double>& end, Paths& paths) {
    paths.push_back({{{start, end, 0.0}}, false});
}

void appendCircle(const NUXBaseObject& element, Paths& paths) {
    const auto centre = element.getPtCircleCenter();
    const double radius = element.getCircleRad();
    const hrx::CVec2<double> west{centre.x - radius, centre.y};
    const hrx::CVec2<double> east{centre.x + radius, centre.y};
    paths.push_back({{{west, east, 1.0}, {east, west, 1.0}}, true});
}

/// As the rules measure it.
void appendMeasured(const UdDbObject& object, Paths& paths) {
    const auto outlines = firestandard::measuredOutlines(object);
    appendOutline(outlines.withStairs.get(), paths);
    const auto* base = NUXBaseObject::Cast(&object);
    if (base && base->m_shapeKind == kCircleShape)
        appendCircle(*base, paths);
    else
        appendOutline(outlines.footprint.get(), paths);
}

void appendCable(const NUXServiceCableObject& cable, Paths& paths) {
    if (!cable.getIsStraight()) {
        const hrx::CArc2d arc(cable.getStartPt(), cable.getEndPt(), cable.getMiddlePt());
        if (!arc.edges().empty()) {
            paths.push_back({arc.edges(), false});
            return;
        }
    }
    appendLine(cable.getStartPt(), cable.getEndPt(), paths);
}

void appendCrane(const NUXTowerCraneObject& crane, Paths& paths) {
    for (const auto& part :
         {crane.getTowerQianBiBody(), crane.getTowerHouBiBody(), crane.getTowerBaseBody()}) {
        if (!part)
            continue;
        if (const hrx::CPolygon* outline = part->planOutline())
            appendOutline(outline, paths);
        else
            appendBox(part->GetExtents(), paths);
    }
}

void appendExtents(const UdDbObject& object, Paths& paths) {
    hrx::CExtents3 extents;
    if (object.GetGeomExtents(extents.low, extents.high) == Udad::eOk)
        appendBox(extents, paths);
}

PlanKind kindOfBase(const NUXBaseObject& element) {
    const std::wstring type = element.getElementType();
    if (NUXYardObject::Cast(&element) || type.find(L"YARD") != std::wstring::npos)
        return PlanKind::Yard;
    if (NUXOpenHouseObject::Cast(&element))
        return PlanKind::Shed;
    if (type == NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION || type == NUX_ELEMENT_TYPE_TOTALSTEPDOWNSUBSTATION)
        return PlanKind::Station;
    if (NUXPrefabHouseObject::Cast(&element) || NUXCloseHouseObject::Cast(&element) ||
        type.find(L"HOUSE") != std::wstring::npos)
        return PlanKind::House;
    return PlanKind::Other;
}

/// Appends the paths of an element of a class that has its own way to lie in plan, and answers its kind.
PlanKind appendElement(const UdDbObject& object, Paths& paths) {
    if (const auto* road = NUXRoadObject::Cast(&object)) {
        appendOutline(road->getRoadPoly(), paths);
        return road->getIsFireRoad() ? PlanKind::FireRoad : PlanKind::Road;
    }
    if (const auto* wall = NUXWallObject::Cast(&object)) {
        appendLine(wall->getStartPosition(), wall->getEndPosition(), paths);
        return PlanKind::Wall;
    }
    if (const auto* cable = NUXServiceCableObject::Cast(&object)) {
        appendCable(*cable, paths);
        return PlanKind::Cable;
    }
    if (const auto* poster = NUXPosterObject::Cast(&object)) {
        appendLine(poster->getFirstPoint(), poster->getSecondPoint(), paths);
        return PlanKind::Poster;
    }
    if (const auto* crane = NUXTowerCraneObject::Cast(&object)) {
        appendCrane(*crane, paths);
        return PlanKind::Crane;
    }
    if (const auto* base = NUXBaseObject::Cast(&object)) {
        appendMeasured(object, paths);
        return NUXDoorObject::Cast(base) ? PlanKind::Door : kindOfBase(*base);
    }
    if (NUX3dsBaseObject::Cast(&object)) {
        appendMeasured(object, paths);
        return PlanKind::Model;
    }
    return PlanKind::Other;
}

/// An arc through points that nearly lie in line may pass far off the site.
bool isWithinReach(const hrx::Edge2d& edge) {
    const hrx::CBox2d box = edge.box();
    return hrx::isWithinReach(edge.start) && hrx::isWithinReach(edge.end) && std::isfinite(edge.bulge) &&
           hrx::isWithinReach(box.low) && hrx::isWithinReach(box.high);
}

bool canBeDrawn(const PlanPath& path) {
    return !path.edges.empty() && std::all_of(path.edges.begin(), path.edges.end(), isWithinReach);
}

} // namespace

PlanShape planShapeOf(const UdDbObject& object) {
    PlanShape shape;
    shape.handle = object.Handle().GetID();
    Paths paths;
    shape.kind = appendElement(object, paths);
    if (paths.empty())
        appendExtents(object, paths);
    for (PlanPath& path : paths) {
        if (!canBeDrawn(path))
            continue;
        for (const hrx::Edge2d& edge : path.edges)
            shape.box.add(edge.box());
        shape.paths.push_back(std::move(path));
    }
    return shape;
}

} // namespace firecheck
