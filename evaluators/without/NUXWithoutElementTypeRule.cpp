#include "evaluators/without/NUXWithoutElementTypeRule.h"

#include "base/WcharArrayToQString.h"
#include "cad/UdDbBlock.h"
#include "elements/NUX3dsBaseObject.h"
#include "elements/NUXCloseHouseObject.h"
#include "elements/NUXOpenHouseObject.h"
#include "elements/NUXPrefabHouseObject.h"
#include "elements/NUXRoadObject.h"
#include "elements/NUXWastePoolObject.h"
#include "evaluators/RuleOutcome.h"
#include "evaluators/rule_catalogue.h"
#include "site/IdentifierField.h"
#include "site/model_space_walk.h"

#include <algorithm>

using namespace firestandard;

namespace {

bool hasUse(const NUXElementObject* element, const RequiredUse& use) {
    switch (use.of) {
    case RequiredUse::Of::FireRoad: {
        const auto* road = NUXRoadObject::Cast(element);
        return road && road->getIsFireRoad();
    }
    case RequiredUse::Of::PrefabHouse: {
        const auto* house = NUXPrefabHouseObject::Cast(element);
        return house && house->houseUse() == use.code;
    }
    case RequiredUse::Of::ClosedHouse: {
        const auto* house = NUXCloseHouseObject::Cast(element);
        return house && house->closeHouseUse() == use.name;
    }
    case RequiredUse::Of::WastePool: {
        const auto* pool = NUXWastePoolObject::Cast(element);
        return pool && pool->getObjectUse() == use.code;
    }
    default: {
        const auto* shed = NUXOpenHouseObject::Cast(element);
        return shed && use.isOpenShedOf(shed->openHouseUse());
    }
    }
}

} // namespace

// Deliberate: the label carries a stray "T", which hosts have always read.
NUXWithoutElementTypeRule::NUXWithoutElementTypeRule() {
    m_type = QStringLiteral("WithoutElementTypeTRule");
}

bool NUXWithoutElementTypeRule::removeWithoutRules(NUXElementObject* element, void*,
                                                   QMap<QString, std::vector<NuxStandardCheckRule>>& rules) {
    if (!element)
        return true;
    const auto entry = rules.find(WcharArrayToQString(element->getElementType().c_str()));
    if (entry == rules.end())
        return true;

    std::vector<NuxStandardCheckRule> kept = entry.value();
    kept.erase(std::remove_if(
                   kept.begin(), kept.end(),
                   [](const NuxStandardCheckRule& rule) { return rule.type == QLatin1String("without"); }),
               kept.end());
    if (kept.empty())
        rules.erase(entry);
    else
        entry.value() = kept;
    return true;
}

std::vector<NuxStandardCheckRule> NUXWithoutElementTypeRule::check(UdDbBlock* modelSpace,
                                                                   const NuxStandardCheckRule& rule) {
    if (!modelSpace)
        return {rule};

    RuleOutcome outcome(rule);
    CheckObserver* const observer = outcome.observer();
    const IdentifierField wantedType(rule.elementType);
    bool isPresent = false;
    walkModelSpace(*modelSpace, [&](UdDbObject* object) {
        bool isOfType = false;
        // A 3-D model is never tried as a site element, nor asked for its use.
        if (const auto* model = NUX3dsBaseObject::Cast(object)) {
            isPresent = isOfType = wantedType.matches(model->getModelKind());
        } else if (auto* element = NUXElementObject::Cast(object)) {
            isOfType = wantedType.matches(element->getElementType());
            isPresent = isOfType && (rule.propertyType.isEmpty() || isRequiredUse(element, rule));
        }
        if (observer && isPresent)
            observer->compared({*object});
        else if (observer && isOfType)
            observer->notJudged(*object, NotJudged::OtherUse);
        return isPresent ? WalkStep::Stop : WalkStep::Continue;
    });
    if (!isPresent)
        outcome.addViolation();
    return outcome.takeViolations();
}

bool NUXWithoutElementTypeRule::isRequiredUse(NUXElementObject* element, const NuxStandardCheckRule& rule) {
    const RuleRow* row = findRule(rule.name, QStringLiteral("without"));
    return row && hasUse(element, row->use);
}
