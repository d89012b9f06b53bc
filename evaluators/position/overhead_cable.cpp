#include "evaluators/position/overhead_cable.h"

#include "cad/UdDbBlock.h"
#include "elements/NUXOpenHouseObject.h"
#include "elements/NUXServiceCableObject.h"
#include "elements/NUXYardObject.h"
#include "evaluators/RuleOutcome.h"
#include "geometry/CArc2d.h"
#include "geometry/CExtents3.h"
#include "geometry/CLine2d.h"
#include "geometry/CPositionJudge.h"
#include "geometry/DistEpsilon.h"
#include "site/element_type_identifiers.h"
#include "site/host_codes.h"
#include "site/model_space_walk.h"
#include "site/outlines.h"

#include <algorithm>

namespace firestandard {

namespace {

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

const NUXBaseObject* asWorkshop(const UdDbObject* object, const RuleRow& row) {
    const auto* shed = NUXOpenHouseObject::Cast(object);
    return shed && row.use.isOpenShedOf(shed->openHouseUse()) ? shed : nullptr;
}

Elements collect(const UdDbBlock& modelSpace, const RuleRow& row) {
    Elements elements;
    walkModelSpace(modelSpace, [&](const UdDbObject* object) {
        if (const NUXBaseObject* yard = asYard(object))
            elements.yards.push_back(yard);
        else if (const NUXBaseObject* workshop = asWorkshop(object, row))
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
    if (area.m_shapeKind == shape::kRectangle) {
        // Deliberate: the angle is taken to be in degrees, whatever a host's NUXRectParam makes of it, as
        // drawings of every host have been judged.
        const hrx::CVec3<double> centre = area.getPtRectCenter();
        for (const hrx::CVec2<double>& corner : turnedRectangleCorners(
                 {centre.x, centre.y}, area.getRectWidthL(), area.getRectHigh(), area.getRectAngle()))
            points.push_back({corner.x, corner.y, 0.0});
    } else if (area.m_shapeKind == shape::kPolyline) {
        area.GetPolyPts(points);
    } else if (area.m_shapeKind == shape::kCircle) {
        // Deliberate: only the x of the radius point counts, the circle is taken through its horizontal
        // diameter; existing drawings keep their radius point there.
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
    const auto curve = planCurve(cable);
    const int position = hrx::CPositionJudge().GetCurvePolygonPosition(curve.get(), &outline);
    return position == kMeetsBoundary || position == kInside;
}

class CableWalk {
public:
    CableWalk(const UdDbBlock& modelSpace, const NuxStandardCheckRule& rule, const RuleRow& row)
        : m_elements(collect(modelSpace, row)), m_outcome(rule) {}

    std::vector<NuxStandardCheckRule> violations() {
        leaveOutThoseOnTheGround();
        std::vector<bool> isCompared(m_elements.cables.size());
        for (const auto* areas : {&m_elements.yards, &m_elements.workshops})
            for (const NUXBaseObject* area : *areas)
                judge(*area, isCompared);
        if (CheckObserver* observer = m_outcome.observer())
            for (std::size_t i = 0; i < isCompared.size(); ++i)
                if (!isCompared[i])
                    observer->notJudged(*m_elements.cables[i], NotJudged::NothingToCompare);
        return m_outcome.takeViolations();
    }

private:
    void leaveOutThoseOnTheGround() {
        auto& cables = m_elements.cables;
        const auto firstOnTheGround =
            std::stable_partition(cables.begin(), cables.end(),
                                  [](const NUXServiceCableObject* cable) { return isRaised(*cable); });
        if (CheckObserver* observer = m_outcome.observer())
            std::for_each(firstOnTheGround, cables.end(), [&](const NUXServiceCableObject* cable) {
                observer->notJudged(*cable, NotJudged::OnTheGround);
            });
        cables.erase(firstOnTheGround, cables.end());
    }

    void judge(const NUXBaseObject& area, std::vector<bool>& isCompared) {
        const std::vector<hrx::PolyPt2d> points = planOutline(area);
        const OutlinePtr outline(new hrx::CPolygon(points));
        for (std::size_t i = 0; i < m_elements.cables.size(); ++i) {
            const NUXServiceCableObject& cable = *m_elements.cables[i];
            const bool offends = runsOver(cable, *outline);
            if (offends)
                relate(m_outcome.addViolation(cable), area);
            CheckObserver* observer = m_outcome.observer();
            if (observer && points.empty()) {
                observer->pairNotJudged(cable, area, NotJudged::NoOutline);
            } else if (observer) {
                isCompared[i] = true;
                observer->compared({cable, &area, offends});
            }
        }
    }

    Elements m_elements;
    RuleOutcome m_outcome;
};

} // namespace

std::vector<NuxStandardCheckRule> checkOverheadCables(const UdDbBlock& modelSpace,
                                                      const NuxStandardCheckRule& rule, const RuleRow& row) {
    return CableWalk(modelSpace, rule, row).violations();
}

} // namespace firestandard
