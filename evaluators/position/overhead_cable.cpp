#include "evaluators/position/overhead_cable.h"

#include "cad/UdDbBlock.h"
#include "elements/NUXOpenHouseObject.h"
#include "elements/NUXServiceCableObject.h"
#include "elements/NUXYardObject.h"
#include "evaluators/position/workshop_use.h"
#include "evaluators/violation_record.h"
#include "geometry/CArc2d.h"
#include "geometry/CExtents3.h"
#include "geometry/CLine2d.h"
#include "geometry/CPositionJudge.h"
#include "geometry/DistEpsilon.h"
#include "site/CheckObserver.h"
#include "site/element_type_identifiers.h"
#include "site/model_space_walk.h"
#include "site/rectangle_outline.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr const char* kYardRules[] = {
    "Position_WireToWoodYard",
    "Position_WireToTemplateYard",
    "Position_WireToElectricalMechanicalYard",
};

constexpr WorkshopUse kWorkshopUses[] = {
    {"Position_WireToWoodFactory", 2},
    {"Position_WireToWoodWorkingFactory", 3},
    {"Position_WireToEletricalMechanicalFactory", 4},
};

// The position values of a curve that meets the boundary of an area and of one that lies inside it.
constexpr int kMeetsBoundary = 0;
constexpr int kInside = 2;

struct Elements {
    std::vector<const NUXBaseObject*> yards;
    std::vector<const NUXBaseObject*> workshops;
    std::vector<const NUXServiceCableObject*> cables;
};

const NUXBaseObject* asYard(const UdDbObject* object) {
    const auto* yard = NUXYardObject::Cast(object);
    if (!yard)
        return nullptr;
    const std::wstring type = yard->getElementType();
    const bool isJudged = type == NUX_EDO_TYPE_TEMPLATEYARD || type == NUX_EDO_TYPE_WOODYARD ||
                          type == NUX_EDO_TYPE_ELECTRICALMECHANICALYARD;
    return isJudged ? yard : nullptr;
}

const NUXBaseObject* asWorkshop(const UdDbObject* object, const QString& ruleName) {
    const auto* shed = NUXOpenHouseObject::Cast(object);
    return shed && isWorkshopOfRule(kWorkshopUses, ruleName, shed->openHouseUse()) ? shed : nullptr;
}

Elements collect(const UdDbBlock& modelSpace, const QString& ruleName) {
    Elements elements;
    walkModelSpace(modelSpace, [&](const UdDbObject* object) {
        if (const NUXBaseObject* yard = asYard(object))
            elements.yards.push_back(yard);
        else if (const NUXBaseObject* workshop = asWorkshop(object, ruleName))
            elements.workshops.push_back(workshop);
        if (const auto* cable = NUXServiceCableObject::Cast(object))
            elements.cables.push_back(cable);
    });
    return elements;
}

bool isRaised(const NUXServiceCableObject& cable) {
    // Without extents a cable is above everything.
    hrx::CExtents3 extents;
    cable.GetGeomExtents(extents.low, extents.high);
    return !(extents.low.z < hrx::g_DistEpsilon);
}

std::vector<hrx::PolyPt2d> planOutline(const NUXBaseObject& area) {
    std::vector<hrx::PolyPt2d> points;
    if (area.m_shapeKind == kRectangleShape) {
        // Deliberate: the angle is taken to be in degrees, whatever a host's NUXRectParam makes of it.
        const hrx::CVec3<double> centre = area.getPtRectCenter();
        for (const hrx::CVec2<double>& corner : turnedRectangleCorners(
                 {centre.x, centre.y}, area.getRectWidthL(), area.getRectHigh(), area.getRectAngle()))
            points.push_back({corner.x, corner.y, 0.0});
    } else if (area.m_shapeKind == kPolylineShape) {
        area.GetPolyPts(points);
    } else if (area.m_shapeKind == kCircleShape) {
        // Deliberate: only the x of the radius point counts, the circle is taken through its horizontal
        // diameter.
        const hrx::CVec3<double> centre = area.getPtCircleCenter();
        const hrx::CVec3<double> radiusPoint = area.getPtCircleRadir();
        points.push_back({radiusPoint.x, centre.y, 1.0});
        points.push_back({2.0 * centre.x - radiusPoint.x, centre.y, 1.0});
    }
    return points;
}

std::unique_ptr<hrx::CCurve2d> planCurve(const NUXServiceCableObject& cable) {
    if (cable.getIsStraight())
        return std::make_unique<hrx::CLine2d>(cable.getStartPt(), cable.getEndPt());
    return std::make_unique<hrx::CArc2d>(cable.getStartPt(), cable.getEndPt(), cable.getMiddlePt());
}

bool runsOver(const NUXServiceCableObject& cable, const hrx::CPolygon& outline) {
    if (!isRaised(cable))
        return false;
    const auto curve = planCurve(cable);
    const int position = hrx::CPositionJudge().GetCurvePolygonPosition(curve.get(), &outline);
    return position == kMeetsBoundary || position == kInside;
}

} // namespace

bool isOverheadCableRule(const QString& ruleName) {
    const auto isName = [&](const char* name) { return ruleName == QLatin1String(name); };
    const auto isRow = [&](const WorkshopUse& row) { return isName(row.ruleName); };
    return std::any_of(std::begin(kYardRules), std::end(kYardRules), isName) ||
           std::any_of(std::begin(kWorkshopUses), std::end(kWorkshopUses), isRow);
}

std::vector<NuxStandardCheckRule> checkOverheadCables(const UdDbBlock& modelSpace,
                                                      const NuxStandardCheckRule& rule) {
    const Elements elements = collect(modelSpace, rule.name);
    for (const NUXServiceCableObject* cable : elements.cables)
        observeFound(*cable);
    std::vector<NuxStandardCheckRule> violations;
    for (const auto* areas : {&elements.yards, &elements.workshops}) {
        for (const NUXBaseObject* area : *areas) {
            const OutlinePtr outline(new hrx::CPolygon(planOutline(*area)));
            for (const NUXServiceCableObject* cable : elements.cables) {
                if (!runsOver(*cable, *outline))
                    continue;
                violations.push_back(violationOf(rule, *cable));
                relate(violations.back(), *area);
            }
        }
    }
    return violations;
}
