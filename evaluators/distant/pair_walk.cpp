#include "evaluators/distant/pair_walk.h"

#include "cad/UdDbBlock.h"
#include "elements/NUX3dsBaseObject.h"
#include "elements/NUXElementObject.h"
#include "evaluators/distant/DistanceCondition.h"
#include "evaluators/distant/pair_distance.h"
#include "evaluators/violation_record.h"
#include "site/CheckObserver.h"
#include "site/IdentifierField.h"
#include "site/model_space_walk.h"

namespace {

// Deliberate: a 3-D model as first element is not measured but counts as touching every reference element.
constexpr double kDistanceOfModel = 0.0;

class PairWalk {
public:
    PairWalk(const UdDbBlock& modelSpace, const NuxStandardCheckRule& rule)
        : m_modelSpace(modelSpace), m_rule(rule), m_condition(rule), m_firstType(rule.elementType),
          m_referenceType(rule.referenceElementType) {}

    std::vector<NuxStandardCheckRule> violations() const {
        std::vector<NuxStandardCheckRule> found;
        walkModelSpace(m_modelSpace, [&](const UdDbObject* object) {
            const auto* element = NUXElementObject::Cast(object);
            const auto* model = element ? nullptr : NUX3dsBaseObject::Cast(object);
            if (!element && !model)
                return;
            // An object that is both a site element and a 3-D model is what its element identifier says.
            const std::wstring type = element ? element->getElementType() : model->getModelKind();
            if (!m_firstType.matches(type))
                return;
            observeFound(*object);
            std::vector<qint64> offending = offendingReferences(*object, {element, type});
            if (offending.empty())
                return;
            found.push_back(violationOf(m_rule, *object));
            found.back().relatedHandles = std::move(offending);
        });
        return found;
    }

private:
    /// `first` is the object as a site element, which a 3-D model is not.
    std::vector<qint64> offendingReferences(const UdDbObject& firstObject,
                                            const IdentifiedElement& first) const {
        std::vector<qint64> offending;
        walkModelSpace(m_modelSpace, [&](const UdDbObject* object) {
            const auto* reference = NUXElementObject::Cast(object);
            if (!reference || reference == first.element)
                return;
            const std::wstring type = reference->getElementType();
            if (!m_referenceType.matches(type))
                return;
            const double distance =
                first.element ? pairDistance(first, {reference, type}, m_rule) : kDistanceOfModel;
            if (distance > kNoDistanceMark)
                return;
            observePair(firstObject, *object, distance);
            if (m_condition.isDistanceViolated(distance))
                offending.push_back(object->Handle().GetID());
        });
        return offending;
    }

    const UdDbBlock& m_modelSpace;
    const NuxStandardCheckRule& m_rule;
    const DistanceCondition m_condition;
    const IdentifierField m_firstType;
    const IdentifierField m_referenceType;
};

} // namespace

std::vector<NuxStandardCheckRule> checkAllPairs(const UdDbBlock& modelSpace,
                                                const NuxStandardCheckRule& rule) {
    return PairWalk(modelSpace, rule).violations();
}
