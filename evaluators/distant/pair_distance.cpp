#include "evaluators/distant/pair_distance.h"

#include "elements/NUXCalcFunc.h"
#include "elements/NUXOpenHouseObject.h"
#include "elements/NUXPrefabHouseObject.h"
#include "elements/NUXRoadObject.h"
#include "site/bodies.h"
#include "site/element_type_identifiers.h"

using namespace firestandard;

namespace {

constexpr PairDistance kTouching{0.0, std::nullopt, std::nullopt};

PairDistance notJudged(NotJudged reason) {
    return {kNoBodyDistance, std::nullopt, reason};
}

/// The distance between two elements that both count.
PairDistance between(const BodyList& first, const BodyList& reference) {
    if (const auto contact = leastContact(first, reference))
        return {contact->distance, contact, std::nullopt};
    const bool isFirstAtFault = first.empty() || !NUXCalcFunc::IsNuxStrictlyBodyValid(first.front().get());
    return {kNoBodyDistance, std::nullopt, NotJudged::NoOutline, isFirstAtFault};
}

bool isMeasured(const IdentifiedElement& first, const IdentifiedElement& reference) {
    const DistanceRow* row = findDistances(first.type);
    return row && row->isMeasuredTo(reference.type);
}

/// What an open shed measures that does not count or cannot be asked for its use; nothing for one that is to
/// be measured. The row must be one of this first element.
std::optional<PairDistance> distanceFromOtherShed(const IdentifiedElement& first,
                                                  const IdentifiedElement& reference, const RuleRow* row) {
    const auto* shed = NUXOpenHouseObject::Cast(reference.element);
    if (!shed)
        return kTouching;
    const bool counts = row && row->elementType == first.type && row->use.isOpenShedOf(shed->openHouseUse());
    return counts ? std::nullopt : std::optional(notJudged(NotJudged::OtherUse));
}

/// A building that is measured by its footprint, against others and open sheds.
PairDistance footprintDistance(const IdentifiedElement& first, const IdentifiedElement& reference,
                               const RuleRow* row) {
    if (!isMeasured(first, reference))
        return notJudged(NotJudged::NeverMeasured);
    if (reference.type == NUX_ELEMENT_TYPE_OPENHOUSE)
        if (const auto fromOther = distanceFromOtherShed(first, reference, row))
            return *fromOther;
    return between(elementBodies(first.element), elementBodies(reference.element));
}

PairDistance prefabHouseDistance(const IdentifiedElement& first, const IdentifiedElement& reference,
                                 const RuleRow* row) {
    if (!isMeasured(first, reference))
        return notJudged(NotJudged::NeverMeasured);
    const auto* house = NUXPrefabHouseObject::Cast(first.element);
    const auto distanceTo = [house](const BodyList& bodies) {
        return between(house ? houseWithStairBodies(*house) : BodyList(), bodies);
    };
    if (reference.type == NUX_EDO_TYPE_ROAD) {
        const auto* road = NUXRoadObject::Cast(reference.element);
        if (!road)
            return kTouching;
        if (!road->getIsFireRoad())
            return notJudged(NotJudged::OtherUse);
        return road->getRoadPoly() ? distanceTo(outlineBodies(road->getRoadPoly())) : kTouching;
    }
    if (reference.type == NUX_ELEMENT_TYPE_PREFABHOUSE) {
        // Deliberate: a point at the origin. Rules between prefab houses are spaced and never come here.
        const double angle = house ? house->getRectAngle() : 0.0;
        BodyList point;
        point.push_back(buildRectParamBody(NUXRectParam({0.0, 0.0}, 0.0, 0.0, angle), kMeasuredHeight));
        return distanceTo(point);
    }
    if (reference.type == NUX_ELEMENT_TYPE_OPENHOUSE)
        if (const auto fromOther = distanceFromOtherShed(first, reference, row))
            return *fromOther;
    return distanceTo(elementBodies(reference.element));
}

PairDistance futureHouseDistance(const IdentifiedElement& first, const IdentifiedElement& reference,
                                 const RuleRow* row) {
    return footprintDistance(first, reference, row);
}

PairDistance substationDistance(const IdentifiedElement& first, const IdentifiedElement& reference,
                                const RuleRow* row) {
    return footprintDistance(first, reference, row);
}

PairDistance fireRoadDistance(const IdentifiedElement& first, const IdentifiedElement& reference) {
    const auto* road = NUXRoadObject::Cast(first.element);
    if (!road)
        return kTouching;
    if (!road->getIsFireRoad())
        return {kNoBodyDistance, std::nullopt, NotJudged::OtherUse, true};
    if (!road->getRoadPoly())
        return kTouching;
    if (!isMeasured(first, reference))
        return notJudged(NotJudged::NeverMeasured);
    return between(outlineBodies(road->getRoadPoly()), elementBodies(reference.element));
}

} // namespace

PairDistance pairDistance(const IdentifiedElement& first, const IdentifiedElement& reference,
                          const RuleRow* row) {
    if (first.type == NUX_EDO_TYPE_ROAD)
        return fireRoadDistance(first, reference);
    if (first.type == NUX_ELEMENT_TYPE_PREFABHOUSE)
        return prefabHouseDistance(first, reference, row);
    if (first.type == NUX_ELEMENT_TYPE_FUTUREHOUSE)
        return futureHouseDistance(first, reference, row);
    if (first.type == NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION)
        return substationDistance(first, reference, row);
    return kTouching;
}
