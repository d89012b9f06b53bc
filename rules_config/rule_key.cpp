#include "rules_config/rule_key.h"

QString ruleKey(const NuxStandardCheckRule& rule) {
    if (rule.type == QLatin1String("without"))
        return rule.elementType + rule.propertyType;
    return rule.name;
}
