#include "evaluators/distant/NUXRelElementTypeDistantRule.h"

#include "evaluators/distant/pair_walk.h"
#include "evaluators/distant/spacing_walk.h"
#include "site/element_type_identifiers.h"

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
    return checkAllPairs(*modelSpace, rule);
}
