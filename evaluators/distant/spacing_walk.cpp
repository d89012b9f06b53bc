#include "evaluators/distant/spacing_walk.h"

#include "cad/UdDbBlock.h"
#include "elements/NUXPrefabHouseObject.h"
#include "elements/NUXTotalStepDownSubstationObject.h"
#include "evaluators/RuleOutcome.h"
#include "evaluators/distant/DistanceCondition.h"
#include "site/model_space_walk.h"

using namespace firestandard;

namespace {

template <class Element> std::vector<const Element*> collect(const UdDbBlock& modelSpace) {
    std::vector<const Element*> elements;
    walkModelSpace(modelSpace, [&](const UdDbObject* object) {
        if (const auto* element = Element::Cast(object))
            elements.push_back(element);
    });
    return elements;
}

std::optional<Contact> prefabHousePairDistance(const NUXPrefabHouseObject& first,
                                               const NUXPrefabHouseObject& second) {
    return leastContact(houseWithStairBodies(first), houseWithStairBodies(second));
}

std::optional<Contact> substationPairDistance(const NUXTotalStepDownSubstationObject& first,
                                              const NUXTotalStepDownSubstationObject& second) {
    return leastContact(elementBodies(&first), elementBodies(&second));
}

template <class Element> class SpacingWalk {
public:
    using PairMeasure = std::optional<Contact>(const Element& first, const Element& second);

    SpacingWalk(const UdDbBlock& modelSpace, const NuxStandardCheckRule& rule, PairMeasure* measure)
        : m_elements(collect<Element>(modelSpace)), m_measure(measure), m_condition(rule), m_outcome(rule) {}

    std::vector<NuxStandardCheckRule> violations() {
        std::vector<bool> isCompared(m_elements.size());
        for (std::size_t i = 0; i < m_elements.size(); ++i) {
            std::vector<qint64> offending;
            bool isFirstOfPair = false;
            for (std::size_t j = i + 1; j < m_elements.size(); ++j) {
                const auto contact = m_measure(*m_elements[i], *m_elements[j]);
                if (!contact || contact->distance > kNoDistanceMark)
                    continue;
                isFirstOfPair = isCompared[i] = isCompared[j] = true;
                const bool offends = m_condition.isDistanceViolated(contact->distance);
                if (offends)
                    offending.push_back(m_elements[j]->Handle().GetID());
                if (CheckObserver* observer = m_outcome.observer())
                    observer->compared({*m_elements[i], m_elements[j], offends,
                                        Measurement{Quantity::Distance, contact->distance,
                                                    m_condition.minimum(), m_condition.maximum()},
                                        contact});
            }
            if (CheckObserver* observer = m_outcome.observer(); observer && !isFirstOfPair)
                tellOfAlone(*observer, *m_elements[i], isCompared[i]);
            if (!offending.empty())
                m_outcome.addViolation(*m_elements[i]).relatedHandles = std::move(offending);
        }
        return m_outcome.takeViolations();
    }

private:
    /// An element that was compared from the other side only has nothing of its own to answer for.
    void tellOfAlone(CheckObserver& observer, const Element& element, bool isCompared) const {
        if (isCompared)
            observer.compared({element});
        else
            observer.notJudged(element, m_measure(element, element) ? NotJudged::NothingToCompare
                                                                    : whyNoBody(&element));
    }

    const std::vector<const Element*> m_elements;
    PairMeasure* const m_measure;
    const DistanceCondition m_condition;
    RuleOutcome m_outcome;
};

} // namespace

std::vector<NuxStandardCheckRule> checkPrefabHouseSpacing(const UdDbBlock& modelSpace,
                                                          const NuxStandardCheckRule& rule) {
    return SpacingWalk<NUXPrefabHouseObject>(modelSpace, rule, prefabHousePairDistance).violations();
}

std::vector<NuxStandardCheckRule> checkSubstationSpacing(const UdDbBlock& modelSpace,
                                                         const NuxStandardCheckRule& rule) {
    return SpacingWalk<NUXTotalStepDownSubstationObject>(modelSpace, rule, substationPairDistance)
        .violations();
}
