#include "evaluators/distant/NUXRelElementTypeDistantRule.h"

#include "evaluators/distant/pair_walk.h"
#include "evaluators/distant/spacing_walk.h"

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
    const auto relates = [&rule](QLatin1String type) {
        return rule.elementType == type && rule.referenceElementType == type;
    };
    if (relates(QLatin1String("NUX_ELEMENT_TYPE_PREFABHOUSE")))
        return checkPrefabHouseSpacing(*modelSpace, rule);
    if (relates(QLatin1String("NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION")))
        return checkSubstationSpacing(*modelSpace, rule);
    return checkAllPairs(*modelSpace, rule);
}
