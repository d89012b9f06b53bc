#include "evaluators/distant/NUXRelElementTypeDistantRule.h"

#include "cad/UdDbBlock.h"
#include "elements/NUX3dsBaseObject.h"
#include "elements/NUXElementObject.h"
#include "evaluators/RuleOutcome.h"
#include "evaluators/distant/DistanceCondition.h"
#include "evaluators/distant/pair_distance.h"
#include "evaluators/distant/spacing_walk.h"
#include "site/IdentifierField.h"
#include "site/element_type_identifiers.h"
#include "site/model_space_walk.h"

using namespace firestandard;

namespace {

/// The walk over every first element and, for each, over every reference element. Deliberate: two elements of
/// one type are measured from both sides and reported under both, where a spacing walk reports them once;
/// existing results are read so.
class PairWalk {
public:
    PairWalk(const UdDbBlock& modelSpace, const NuxStandardCheckRule& rule)
        : m_modelSpace(modelSpace), m_row(findRule(rule.name, QStringLiteral("distant"))), m_condition(rule),
          m_firstType(rule.elementType), m_referenceType(rule.referenceElementType), m_outcome(rule) {}

    std::vector<NuxStandardCheckRule> violations() {
        walkModelSpace(m_modelSpace, [&](const UdDbObject* object) {
            const auto* element = NUXElementObject::Cast(object);
            const auto* model = element ? nullptr : NUX3dsBaseObject::Cast(object);
            if (!element && !model)
                return;
            // An object that is both a site element and a 3-D model is what its element identifier says.
            const std::wstring type = element ? element->getElementType() : model->getModelKind();
            if (!m_firstType.matches(type))
                return;
            std::vector<qint64> offending = offendingReferences(*object, {element, type});
            if (!offending.empty())
                m_outcome.addViolation(*object).relatedHandles = std::move(offending);
        });
        return m_outcome.takeViolations();
    }

private:
    /// `first` is the object as a site element, which a 3-D model is not.
    std::vector<qint64> offendingReferences(const UdDbObject& firstObject, const IdentifiedElement& first) {
        std::vector<qint64> offending;
        bool isCompared = false;
        NotJudged reason = NotJudged::NothingToCompare;
        walkModelSpace(m_modelSpace, [&](const UdDbObject* object) {
            const auto* reference = NUXElementObject::Cast(object);
            if (!reference || reference == first.element)
                return;
            const std::wstring type = reference->getElementType();
            if (!m_referenceType.matches(type))
                return;
            const PairDistance pair = distanceOf(first, {reference, type});
            if (pair.distance > kNoDistanceMark) {
                if (CheckObserver* observer = m_outcome.observer())
                    reason = tellNotJudged(*observer, firstObject, first, *reference, pair, reason);
                return;
            }
            isCompared = true;
            const bool offends = m_condition.isDistanceViolated(pair.distance);
            if (offends)
                offending.push_back(object->Handle().GetID());
            if (CheckObserver* observer = m_outcome.observer())
                observer->compared({firstObject, object, offends, measurementOf(pair), pair.contact});
        });
        if (CheckObserver* observer = m_outcome.observer(); observer && !isCompared)
            observer->notJudged(firstObject, reason);
        return offending;
    }

    /// Deliberate: a 3-D model as first element is not measured but counts as touching every reference
    /// element; rule files say by their limits whether that offends.
    PairDistance distanceOf(const IdentifiedElement& first, const IdentifiedElement& reference) const {
        return first.element ? pairDistance(first, reference, m_row)
                             : PairDistance{0.0, std::nullopt, std::nullopt};
    }

    Measurement measurementOf(const PairDistance& pair) const {
        return {Quantity::Distance, pair.distance, m_condition.minimum(), m_condition.maximum()};
    }

    /// Answers why the first element is not judged if all its pairs are like this one or those before.
    static NotJudged tellNotJudged(CheckObserver& observer, const UdDbObject& firstObject,
                                   const IdentifiedElement& first, const NUXElementObject& reference,
                                   const PairDistance& pair, NotJudged reasonSoFar) {
        // Without a reason the two are farther apart than any distance.
        const NotJudged why = pair.reason.value_or(NotJudged::NothingToCompare);
        if (pair.isFirstAtFault)
            return why == NotJudged::NoOutline ? whyNoBody(first.element) : why;
        observer.pairNotJudged(firstObject, reference,
                               why == NotJudged::NoOutline ? whyNoBody(&reference) : why);
        return why == NotJudged::NeverMeasured ? why : reasonSoFar;
    }

    const UdDbBlock& m_modelSpace;
    const RuleRow* const m_row;
    const DistanceCondition m_condition;
    const IdentifierField m_firstType;
    const IdentifierField m_referenceType;
    RuleOutcome m_outcome;
};

} // namespace

NUXRelElementTypeDistantRule::NUXRelElementTypeDistantRule() {
    m_type = QStringLiteral("RelElementTypeDistantRule");
}

bool NUXRelElementTypeDistantRule::removeWithoutRules(NUXElementObject*, void*,
                                                      QMap<QString, std::vector<NuxStandardCheckRule>>&) {
    return true;
}

std::vector<NuxStandardCheckRule> NUXRelElementTypeDistantRule::check(UdDbBlock* modelSpace,
                                                                      const NuxStandardCheckRule& rule) {
    if (!modelSpace)
        return {};
    const auto relates = [&rule](std::wstring_view identifier) {
        const auto type = QString::fromWCharArray(identifier.data(), static_cast<int>(identifier.size()));
        return rule.elementType == type && rule.referenceElementType == type;
    };
    if (relates(NUX_ELEMENT_TYPE_PREFABHOUSE))
        return checkPrefabHouseSpacing(*modelSpace, rule);
    if (relates(NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION))
        return checkSubstationSpacing(*modelSpace, rule);
    return PairWalk(*modelSpace, rule).violations();
}
