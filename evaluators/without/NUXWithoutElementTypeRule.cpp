#include "evaluators/without/NUXWithoutElementTypeRule.h"

#include "base/WcharArrayToQString.h"
#include "cad/UdDbBlock.h"
#include "elements/NUX3dsBaseObject.h"
#include "elements/NUXElementObject.h"
#include "evaluators/without/required_use.h"
#include "site/CheckObserver.h"
#include "site/IdentifierField.h"
#include "site/model_space_walk.h"

#include <algorithm>

// Deliberate: the label carries a stray "T".
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

    const IdentifierField wantedType(rule.elementType);
    bool isPresent = false;
    walkModelSpace(*modelSpace, [&](UdDbObject* object) {
        // A 3-D model is never tried as a site element, nor asked for its use.
        if (const auto* model = NUX3dsBaseObject::Cast(object)) {
            isPresent = wantedType.matches(model->getModelKind());
        } else if (auto* element = NUXElementObject::Cast(object)) {
            if (!wantedType.matches(element->getElementType()))
                return WalkStep::Continue;
            isPresent = rule.propertyType.isEmpty() || isRequiredUse(element, rule);
        }
        if (isPresent)
            observeFound(*object);
        return isPresent ? WalkStep::Stop : WalkStep::Continue;
    });
    if (isPresent)
        return {};
    return {rule};
}

bool NUXWithoutElementTypeRule::isRequiredUse(NUXElementObject* element, const NuxStandardCheckRule& rule) {
    return hasRequiredUse(element, rule.name);
}
