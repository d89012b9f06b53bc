#include "bare_walk.h"

#include "elements/NUX3dsBaseObject.h"
#include "elements/NUXDoorObject.h"
#include "elements/NUXElementObject.h"
#include "elements/NUXPrefabHouseObject.h"
#include "elements/NUXServiceCableObject.h"
#include "elements/NUXTotalStepDownSubstationObject.h"
#include "elements/NUXYardObject.h"
#include "evaluators/without/NUXWithoutElementTypeRule.h"
#include "site/model_space_walk.h"

using namespace firestandard;

namespace {

class Floor {
public:
    Floor(const UdDbBlock& modelSpace, const NuxStandardCheckRule& rule)
        : m_modelSpace(modelSpace), m_rule(rule), m_firstType(rule.elementType.toStdWString()),
          m_referenceType(rule.referenceElementType.toStdWString()) {}

    std::size_t walk() {
        if (m_rule.type == QLatin1String("distant"))
            isSpacing() ? walkByClass() : walkPairs();
        else if (m_rule.type == QLatin1String("without"))
            walkUntilFound();
        else if (m_rule.type == QLatin1String("self"))
            walkElements();
        else
            walkPositions();
        return m_visits;
    }

private:
    template <class Visit> void visitAll(Visit&& visit) {
        walkModelSpace(m_modelSpace, [&](UdDbObject* object) {
            ++m_visits;
            return visit(object);
        });
    }

    bool isSpacing() const {
        return m_firstType == m_referenceType && (m_firstType == L"NUX_ELEMENT_TYPE_PREFABHOUSE" ||
                                                  m_firstType == L"NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION");
    }

    void walkByClass() {
        visitAll([&](const UdDbObject* object) {
            m_matches += NUXPrefabHouseObject::Cast(object) != nullptr;
            m_matches += NUXTotalStepDownSubstationObject::Cast(object) != nullptr;
        });
    }

    void walkPairs() {
        visitAll([&](const UdDbObject* object) {
            const auto* element = NUXElementObject::Cast(object);
            const auto* model = NUX3dsBaseObject::Cast(object);
            if (element ? element->getElementType() == m_firstType
                        : model && model->getModelKind() == m_firstType)
                walkReferences(element);
        });
    }

    void walkReferences(const NUXElementObject* first) {
        visitAll([&](const UdDbObject* object) {
            const auto* reference = NUXElementObject::Cast(object);
            m_matches += reference && reference != first && reference->getElementType() == m_referenceType;
        });
    }

    void walkUntilFound() {
        NUXWithoutElementTypeRule evaluator;
        visitAll([&](UdDbObject* object) {
            bool isFound = false;
            if (const auto* model = NUX3dsBaseObject::Cast(object))
                isFound = model->getModelKind() == m_firstType;
            else if (auto* element = NUXElementObject::Cast(object))
                isFound = element->getElementType() == m_firstType &&
                          (m_rule.propertyType.isEmpty() || evaluator.isRequiredUse(element, m_rule));
            return isFound ? WalkStep::Stop : WalkStep::Continue;
        });
    }

    void walkElements() {
        visitAll([&](const UdDbObject* object) {
            m_matches += NUXElementObject::Cast(object) && NUXDoorObject::Cast(object);
        });
        if (m_rule.name.endsWith(QLatin1String("RoadLoop")))
            walkIdentifiers();
    }

    /// One walk collects what an object stands to: boxes by their model kind, cables, walls and roads by
    /// class. Boxes and roads take a second one over the objects that stand to them.
    void walkPositions() {
        const bool isAboutBoxes = m_rule.name.contains(QLatin1String("FireExtinguisherBox"));
        visitAll([&](const UdDbObject* object) {
            const auto* model = isAboutBoxes ? NUX3dsBaseObject::Cast(object) : nullptr;
            m_matches += model && model->getModelKind() == m_firstType;
            m_matches += NUXServiceCableObject::Cast(object) || NUXYardObject::Cast(object);
        });
        if (isAboutBoxes || m_rule.name == QLatin1String("Position_FireRoad"))
            walkIdentifiers();
    }

    void walkIdentifiers() {
        visitAll([&](const UdDbObject* object) {
            const auto* element = NUXElementObject::Cast(object);
            m_matches += element && element->getElementType() == m_firstType;
        });
    }

    const UdDbBlock& m_modelSpace;
    const NuxStandardCheckRule& m_rule;
    const std::wstring m_firstType;
    const std::wstring m_referenceType;
    std::size_t m_visits = 0;
    std::size_t m_matches = 0;
};

} // namespace

std::size_t bareWalk(const UdDbBlock& modelSpace, const NuxStandardCheckRule& rule) {
    return Floor(modelSpace, rule).walk();
}
