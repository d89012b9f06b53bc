#include "evaluators/distant/spacing_walk.h"

#include "cad/UdDbBlock.h"
#include "elements/NUXPrefabHouseObject.h"
#include "elements/NUXTotalStepDownSubstationObject.h"
#include "evaluators/distant/DistanceCondition.h"
#include "evaluators/violation_record.h"
#include "site/CheckObserver.h"
#include "site/element_body.h"
#include "site/min_body_distance.h"
#include "site/model_space_walk.h"

namespace {

constexpr double kBodyHeight = 1.0;

template <class Element> std::vector<const Element*> collect(const UdDbBlock& modelSpace) {
    std::vector<const Element*> elements;
    walkModelSpace(modelSpace, [&](const UdDbObject* object) {
        if (const auto* element = Element::Cast(object))
            elements.push_back(element);
    });
    return elements;
}

template <class Element>
std::vector<NuxStandardCheckRule> checkSpacing(const UdDbBlock& modelSpace, const NuxStandardCheckRule& rule,
                                               double (*pairDistance)(const Element&, const Element&)) {
    const DistanceCondition condition(rule);
    const std::vector<const Element*> elements = collect<Element>(modelSpace);
    std::vector<NuxStandardCheckRule> violations;
    for (std::size_t i = 0; i < elements.size(); ++i) {
        observeFound(*elements[i]);
        std::vector<qint64> offending;
        for (std::size_t j = i + 1; j < elements.size(); ++j) {
            const double distance = pairDistance(*elements[i], *elements[j]);
            if (distance > kNoDistanceMark)
                continue;
            observePair(*elements[i], *elements[j], distance);
            if (condition.isDistanceViolated(distance))
                offending.push_back(elements[j]->Handle().GetID());
        }
        if (offending.empty())
            continue;
        violations.push_back(violationOf(rule, *elements[i]));
        violations.back().relatedHandles = std::move(offending);
    }
    return violations;
}

BodyList houseBodies(const NUXPrefabHouseObject& house) {
    BodyList bodies;
    bodies.push_back(buildHouseWithStairBody(house, kBodyHeight));
    return bodies;
}

BodyList substationBodies(const NUXTotalStepDownSubstationObject& substation) {
    BodyList bodies;
    BodyPtr body;
    if (buildElementBody(&substation, kBodyHeight, body))
        bodies.push_back(std::move(body));
    return bodies;
}

} // namespace

std::vector<NuxStandardCheckRule> checkPrefabHouseSpacing(const UdDbBlock& modelSpace,
                                                          const NuxStandardCheckRule& rule) {
    return checkSpacing<NUXPrefabHouseObject>(modelSpace, rule, prefabHousePairDistance);
}

std::vector<NuxStandardCheckRule> checkSubstationSpacing(const UdDbBlock& modelSpace,
                                                         const NuxStandardCheckRule& rule) {
    return checkSpacing<NUXTotalStepDownSubstationObject>(modelSpace, rule, substationPairDistance);
}

double prefabHousePairDistance(const NUXPrefabHouseObject& first, const NUXPrefabHouseObject& second) {
    return minBodyDistance(houseBodies(first), houseBodies(second));
}

double substationPairDistance(const NUXTotalStepDownSubstationObject& first,
                              const NUXTotalStepDownSubstationObject& second) {
    return minBodyDistance(substationBodies(first), substationBodies(second));
}
