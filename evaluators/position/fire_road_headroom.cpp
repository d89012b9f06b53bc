#include "evaluators/position/fire_road_headroom.h"

#include "cad/UdDbBlock.h"
#include "elements/NUX3dsBaseObject.h"
#include "elements/NUXCalcFunc.h"
#include "elements/NUXPosterObject.h"
#include "elements/NUXRoadObject.h"
#include "elements/NUXServiceCableObject.h"
#include "elements/NUXTowerCraneObject.h"
#include "evaluators/RuleOutcome.h"
#include "evaluators/position/headroom_bodies.h"
#include "geometry/BodyDistance.h"
#include "geometry/CExtents3.h"
#include "site/element_type_identifiers.h"
#include "site/model_space_walk.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <string_view>

namespace firestandard {

namespace {

using FireRoads = std::vector<const NUXRoadObject*>;

constexpr double kElementBodyHeight = 1000.0; // millimetres
constexpr double kTouchDistance = 0.001;      // millimetres; distances up to it count as touching

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

/// Nothing when one of the two cannot be measured.
std::optional<Contact> contactOf(const hrx::CExtrudedBody& clearance, const hrx::CBody& body) {
    Contact contact;
    contact.distance = hrx::BodyDistance(&clearance, &body, contact.onFirst, contact.onSecond, 0.1);
    return contact.distance < kNoBodyDistance ? std::optional(contact) : std::nullopt;
}

bool overlaps(double lowest, double highest, double bodyLowest, double bodyHighest) {
    constexpr double kEpsilon = std::numeric_limits<double>::epsilon();
    return !(lowest - kEpsilon > bodyHighest) && !(bodyLowest > highest + kEpsilon);
}

bool overlap(const hrx::CExtents3& extents, const hrx::CExtents3& room) {
    return overlaps(extents.low.x, extents.high.x, room.low.x, room.high.x) &&
           overlaps(extents.low.y, extents.high.y, room.low.y, room.high.y) &&
           overlaps(extents.low.z, extents.high.z, room.low.z, room.high.z);
}

FireRoads collectFireRoads(const UdDbBlock& modelSpace) {
    FireRoads roads;
    walkModelSpace(modelSpace, [&](const UdDbObject* object) {
        const auto* road = NUXRoadObject::Cast(object);
        if (road && road->getIsFireRoad())
            roads.push_back(road);
    });
    return roads;
}

/// The fire roads of the site against one object.
class HeadroomCheck {
public:
    HeadroomCheck(const FireRoads& roads, const NuxStandardCheckRule& rule)
        : m_roads(roads), m_outcome(rule) {}

    std::vector<NuxStandardCheckRule> violationsOf(const UdDbObject* object) {
        judge(object);
        return m_outcome.takeViolations();
    }

private:
    void judge(const UdDbObject* object) {
        const auto* model = NUX3dsBaseObject::Cast(object);
        if (const auto* element = NUXElementObject::Cast(object)) {
            const std::wstring type = element->getElementType();
            if (contains(kAllowedElements, type))
                return tellAllowed(element);
            if (type == NUX_ELEMENT_TYPE_POSTER)
                return judgePoster(*element);
            if (type == NUX_EDO_TYPE_SERVICECABLE)
                return judgeCable(*element);
            if (type == NUX_EDO_TYPE_TOWERCRANE)
                return judgeTowerCrane(*element);
            if (!judgeElement(*element) || !model)
                return;
        }
        if (model && !contains(kAllowedModels, model->getModelKind()))
            return judgeExtents(*model);
        tellAllowed(object);
    }

    void judgePoster(const NUXElementObject& element) {
        const auto* poster = NUXPosterObject::Cast(&element);
        const auto body = poster ? buildPosterBody(*poster) : nullptr;
        if (!body)
            return tellWithoutBody(element);
        forEachClearance(element, [&](const hrx::CExtrudedBody& clearance) {
            return isFitForMeasuring(*poster, clearance, *body) ? contactOf(clearance, *body) : std::nullopt;
        });
    }

    void judgeCable(const NUXElementObject& element) {
        const auto* cable = NUXServiceCableObject::Cast(&element);
        const auto body = cable ? buildCableBody(*cable) : nullptr;
        if (!body)
            return tellWithoutBody(element);
        forEachClearance(element,
                         [&](const hrx::CExtrudedBody& clearance) { return contactOf(clearance, *body); });
    }

    void judgeTowerCrane(const NUXElementObject& element) {
        const auto* crane = NUXTowerCraneObject::Cast(&element);
        if (!crane)
            return tellWithoutBody(element);
        const auto base = crane->getTowerBaseBody();
        const auto frontJib = crane->getTowerQianBiBody();
        const auto counterJib = crane->getTowerHouBiBody();
        forEachClearance(element, [&](const hrx::CExtrudedBody& clearance) {
            std::optional<Contact> least;
            for (const auto* part : {&base, &frontJib, &counterJib}) {
                if (!*part)
                    continue;
                const std::optional<Contact> contact = contactOf(clearance, **part);
                if (contact && (!least || contact->distance < least->distance))
                    least = contact;
            }
            return least;
        });
    }

    /// False when the element has no body, which ends its check.
    bool judgeElement(const NUXElementObject& element) {
        BodyPtr body;
        if (!buildElementBody(&element, kElementBodyHeight, body)) {
            tellWithoutBody(element);
            return false;
        }
        forEachClearance(element,
                         [&](const hrx::CExtrudedBody& clearance) { return contactOf(clearance, *body); });
        return true;
    }

    void judgeExtents(const NUX3dsBaseObject& model) {
        // Without extents a model is beyond everything.
        hrx::CExtents3 extents;
        model.GetGeomExtents(extents.low, extents.high);
        for (const NUXRoadObject* road : m_roads) {
            const auto clearance = buildClearanceBody(*road);
            const hrx::CExtents3 room = clearance ? clearance->GetExtents() : hrx::CExtents3();
            if (room.low.x <= room.high.x)
                conclude({*road, &model, overlap(extents, room)});
            else
                tellNotJudged(*road, NotJudged::NoOutline);
        }
    }

    /// `measure` answers the contact of a clearance body with the object; nothing where it has none.
    template <class Measure> void forEachClearance(const UdDbObject& object, Measure&& measure) {
        for (const NUXRoadObject* road : m_roads) {
            const auto clearance = buildClearanceBody(*road);
            const std::optional<Contact> contact = clearance ? measure(*clearance) : std::nullopt;
            if (contact)
                conclude({*road, &object, contact->distance <= kTouchDistance,
                          atLeast(Quantity::Clearance, contact->distance, kTouchDistance), contact});
            else
                tellNotJudged(*road, NUXCalcFunc::IsNuxStrictlyBodyValid(clearance.get())
                                         ? NotJudged::NothingToCompare
                                         : NotJudged::NoOutline);
        }
    }

    void conclude(const Comparison& comparison) {
        if (comparison.offends)
            relate(m_outcome.addViolation(comparison.element), *comparison.other);
        if (CheckObserver* observer = m_outcome.observer())
            observer->compared(comparison);
    }

    /// Null is an object that did not open.
    void tellAllowed(const UdDbObject* object) const {
        CheckObserver* const observer = m_outcome.observer();
        for (const NUXRoadObject* road : observer ? m_roads : FireRoads()) {
            if (object)
                observer->compared({*road, object});
            else
                observer->notJudged(*road, NotJudged::NothingToCompare);
        }
    }

    void tellWithoutBody(const NUXElementObject& element) const {
        CheckObserver* const observer = m_outcome.observer();
        for (const NUXRoadObject* road : observer ? m_roads : FireRoads()) {
            observer->pairNotJudged(*road, element, whyNoBody(&element));
            observer->notJudged(*road, NotJudged::NothingToCompare);
        }
    }

    void tellNotJudged(const NUXRoadObject& road, NotJudged why) const {
        if (CheckObserver* observer = m_outcome.observer())
            observer->notJudged(road, why);
    }

    const FireRoads& m_roads;
    RuleOutcome m_outcome;
};

} // namespace

std::vector<NuxStandardCheckRule> checkFireRoadHeadroom(const UdDbBlock& modelSpace,
                                                        const NuxStandardCheckRule& rule) {
    const FireRoads roads = collectFireRoads(modelSpace);
    if (roads.empty())
        return {};
    // Deliberate: each object's records replace those of the one before it, as existing results are read. So
    // only the last object needs a check.
    const UdDbObject* last = nullptr;
    walkModelSpace(modelSpace, [&](const UdDbObject* object) { last = object; });
    return HeadroomCheck(roads, rule).violationsOf(last);
}

} // namespace firestandard
