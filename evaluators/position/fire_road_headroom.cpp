#include "evaluators/position/fire_road_headroom.h"

#include "cad/UdDbBlock.h"
#include "elements/NUX3dsBaseObject.h"
#include "elements/NUXPosterObject.h"
#include "elements/NUXRoadObject.h"
#include "elements/NUXServiceCableObject.h"
#include "elements/NUXTowerCraneObject.h"
#include "evaluators/position/cable_body.h"
#include "evaluators/position/clearance_body.h"
#include "evaluators/position/poster_headroom.h"
#include "evaluators/violation_record.h"
#include "geometry/CExtents3.h"
#include "site/CheckObserver.h"
#include "site/element_body.h"
#include "site/element_type_identifiers.h"
#include "site/min_body_distance.h"
#include "site/model_space_walk.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <string_view>

namespace {

using Roads = std::vector<const NUXRoadObject*>;
using Records = std::vector<NuxStandardCheckRule>;

constexpr double kElementBodyHeight = 1000.0;

constexpr std::wstring_view kAllowedElements[] = {
    NUX_EDO_TYPE_ROAD,
    NUX_EDO_TYPE_WASHINGPOOL,
    NUX_ELEMENT_TYPE_WASHINGPOOL2,
    NUX_EDO_TYPE_DOOR,
};

// Compared with what a 3-D model says it shows, whichever family the identifier is of. The car has no
// constant.
constexpr std::wstring_view kAllowedModels[] = {
    NUX_EDO_TYPE_BENGCHE, NUX_EDO_TYPE_WAJUEJI,    NUX_EDO_TYPE_QICHEDIAO,       NUX_EDO_TYPE_HUNNITUGC,
    NUX_EDO_TYPE_YALUJI,  L"NUX_ELEMENT_TYPE_CAR", NUX_ELEMENT_TYPE_WEIGHBRIDGE,
};

template <std::size_t count>
bool contains(const std::wstring_view (&list)[count], const std::wstring& identifier) {
    return std::find(std::begin(list), std::end(list), identifier) != std::end(list);
}

NuxStandardCheckRule intrusion(const NUXRoadObject& road, const UdDbObject& intruder,
                               const NuxStandardCheckRule& rule) {
    NuxStandardCheckRule record = violationOf(rule, road);
    relate(record, intruder);
    return record;
}

/// One record for each road with a clearance body into which the intruder reaches.
template <class Intrudes>
Records intrusions(const Roads& roads, const UdDbObject& intruder, const NuxStandardCheckRule& rule,
                   Intrudes&& reachesInto) {
    Records records;
    for (const NUXRoadObject* road : roads) {
        const auto clearance = buildClearanceBody(*road);
        if (clearance && reachesInto(*clearance))
            records.push_back(intrusion(*road, intruder, rule));
    }
    return records;
}

Records checkPoster(const Roads& roads, const NUXPosterObject& poster, const NuxStandardCheckRule& rule) {
    const auto body = buildPosterBody(poster);
    if (!body)
        return {};
    return intrusions(roads, poster, rule, [&](const hrx::CExtrudedBody& clearance) {
        return posterIntrudes(poster, clearance, *body);
    });
}

Records checkCable(const Roads& roads, const NUXServiceCableObject& cable, const NuxStandardCheckRule& rule) {
    const auto body = buildCableBody(cable);
    if (!body)
        return {};
    return intrusions(roads, cable, rule,
                      [&](const hrx::CExtrudedBody& clearance) { return intrudes(clearance, *body); });
}

Records checkTowerCrane(const Roads& roads, const NUXTowerCraneObject& crane,
                        const NuxStandardCheckRule& rule) {
    const auto base = crane.getTowerBaseBody();
    const auto frontJib = crane.getTowerQianBiBody();
    const auto counterJib = crane.getTowerHouBiBody();
    return intrusions(roads, crane, rule, [&](const hrx::CExtrudedBody& clearance) {
        double least = kNoBodyDistance;
        for (const auto* part : {&base, &frontJib, &counterJib}) {
            if (*part)
                least = std::min(least, clearanceDistance(clearance, **part));
        }
        return least <= kTouchDistance;
    });
}

bool isSpecialElement(const std::wstring& type) {
    return type == NUX_ELEMENT_TYPE_POSTER || type == NUX_EDO_TYPE_SERVICECABLE ||
           type == NUX_EDO_TYPE_TOWERCRANE;
}

Records checkSpecialElement(const Roads& roads, const NUXElementObject& element, const std::wstring& type,
                            const NuxStandardCheckRule& rule) {
    if (type == NUX_ELEMENT_TYPE_POSTER) {
        if (const auto* poster = NUXPosterObject::Cast(&element))
            return checkPoster(roads, *poster, rule);
    } else if (type == NUX_EDO_TYPE_SERVICECABLE) {
        if (const auto* cable = NUXServiceCableObject::Cast(&element))
            return checkCable(roads, *cable, rule);
    } else if (const auto* crane = NUXTowerCraneObject::Cast(&element)) {
        return checkTowerCrane(roads, *crane, rule);
    }
    return {};
}

/// Appends the intrusions of an ordinary element; false when it has no body, which ends its check.
bool appendElementIntrusions(const Roads& roads, const NUXElementObject& element,
                             const NuxStandardCheckRule& rule, Records& records) {
    for (const NUXRoadObject* road : roads) {
        const auto clearance = buildClearanceBody(*road);
        BodyPtr body;
        if (!buildElementBody(&element, kElementBodyHeight, body))
            return false;
        if (clearance && intrudes(*clearance, *body))
            records.push_back(intrusion(*road, element, rule));
    }
    return true;
}

bool overlaps(double lowest, double highest, double bodyLowest, double bodyHighest) {
    constexpr double kEpsilon = std::numeric_limits<double>::epsilon();
    return !(lowest - kEpsilon > bodyHighest) && !(bodyLowest > highest + kEpsilon);
}

Records checkModelExtents(const Roads& roads, const NUX3dsBaseObject& model,
                          const NuxStandardCheckRule& rule) {
    // Without extents a model is beyond everything.
    hrx::CExtents3 extents;
    model.GetGeomExtents(extents.low, extents.high);
    return intrusions(roads, model, rule, [&](const hrx::CExtrudedBody& clearance) {
        const hrx::CExtents3 room = clearance.GetExtents();
        return overlaps(extents.low.x, extents.high.x, room.low.x, room.high.x) &&
               overlaps(extents.low.y, extents.high.y, room.low.y, room.high.y) &&
               overlaps(extents.low.z, extents.high.z, room.low.z, room.high.z);
    });
}

Records checkObject(const Roads& roads, const UdDbObject* object, const NuxStandardCheckRule& rule) {
    Records records;
    if (const auto* element = NUXElementObject::Cast(object)) {
        const std::wstring type = element->getElementType();
        if (contains(kAllowedElements, type))
            return records;
        if (isSpecialElement(type))
            return checkSpecialElement(roads, *element, type, rule);
        if (!appendElementIntrusions(roads, *element, rule, records))
            return records;
    }
    const auto* model = NUX3dsBaseObject::Cast(object);
    if (!model || contains(kAllowedModels, model->getModelKind()))
        return records;
    const Records ofExtents = checkModelExtents(roads, *model, rule);
    records.insert(records.end(), ofExtents.begin(), ofExtents.end());
    return records;
}

Roads collectFireRoads(const UdDbBlock& modelSpace) {
    Roads roads;
    walkModelSpace(modelSpace, [&](const UdDbObject* object) {
        const auto* road = NUXRoadObject::Cast(object);
        if (road && road->getIsFireRoad())
            roads.push_back(road);
    });
    return roads;
}

} // namespace

std::vector<NuxStandardCheckRule> checkFireRoadHeadroom(const UdDbBlock& modelSpace,
                                                        const NuxStandardCheckRule& rule) {
    const Roads roads = collectFireRoads(modelSpace);
    for (const NUXRoadObject* road : roads)
        observeFound(*road);
    if (roads.empty())
        return {};
    // Deliberate: each object's records replace those of the one before it, so only the last object needs a
    // check.
    const UdDbObject* last = nullptr;
    walkModelSpace(modelSpace, [&](const UdDbObject* object) { last = object; });
    return checkObject(roads, last, rule);
}
