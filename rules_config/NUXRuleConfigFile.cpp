#include "rules_config/NUXRuleConfigFile.h"

#include "rules_config/RuleFileStatus.h"
#include "rules_config/read_rules.h"

#include <algorithm>
#include <iterator>

NUXRuleConfigFile* NUXRuleConfigFile::m_instance = nullptr;

namespace {

firestandard::RuleFileStatus s_status; ///< beside the store, whose members are part of its interface

} // namespace

firestandard::RuleFileStatus firestandard::ruleFileStatus() {
    NUXRuleConfigFile::Single();
    return s_status;
}

NUXRuleConfigFile* NUXRuleConfigFile::Single() {
    if (!m_instance)
        m_instance = new NUXRuleConfigFile();
    return m_instance;
}

// Deliberate: the path is still empty here, so the file read is always the rooted name alone, and a directory
// set later changes nothing. Hosts lay their rule file there.
NUXRuleConfigFile::NUXRuleConfigFile() {
    loadFile();
}

NUXRuleConfigFile::NUXRuleConfigFile(const NUXRuleConfigFile& other) = default;
NUXRuleConfigFile& NUXRuleConfigFile::operator=(const NUXRuleConfigFile& other) = default;
NUXRuleConfigFile::~NUXRuleConfigFile() = default;

void NUXRuleConfigFile::setConfigFilePath(const QString& path) {
    m_configFilePath = path;
}

void NUXRuleConfigFile::loadFile() {
    m_ruleMap =
        firestandard::readRules(m_configFilePath + QStringLiteral("\\FireStandardCheck.xml"), s_status);
}

const QMap<QString, std::vector<NuxStandardCheckRule>>& NUXRuleConfigFile::getAllRuleMap() const {
    return m_ruleMap;
}

QMap<QString, std::vector<NuxStandardCheckRule>>
NUXRuleConfigFile::getRuleMapFromType(const QString& type) const {
    QMap<QString, std::vector<NuxStandardCheckRule>> selected;
    for (auto entry = m_ruleMap.cbegin(); entry != m_ruleMap.cend(); ++entry) {
        std::vector<NuxStandardCheckRule> ofType;
        std::copy_if(entry->begin(), entry->end(), std::back_inserter(ofType),
                     [&type](const NuxStandardCheckRule& rule) { return rule.type == type; });
        if (!ofType.empty())
            selected.insert(entry.key(), ofType);
    }
    return selected;
}
