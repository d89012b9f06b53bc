#include "shipped_rules.h"

#include "base/rooted_file_name.h"
#include "rules_config/NUXRuleConfigFile.h"

#include <stdexcept>

const QMap<QString, std::vector<NuxStandardCheckRule>>& shippedRules() {
    static const NUXRuleConfigFile* const store = [] {
        setDriveRoot(QStringLiteral(SOURCE_DATA_DIRECTORY));
        return NUXRuleConfigFile::Single();
    }();
    if (store->getAllRuleMap().isEmpty())
        throw std::runtime_error("the shipped rule file gave no rules");
    return store->getAllRuleMap();
}

const NuxStandardCheckRule& shippedRule(const char* name) {
    for (const auto& sharingKey : shippedRules())
        for (const NuxStandardCheckRule& rule : sharingKey)
            if (rule.name == QLatin1String(name))
                return rule;
    throw std::runtime_error(std::string("no rule is named ") + name);
}
