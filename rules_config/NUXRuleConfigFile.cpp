#include "rules_config/NUXRuleConfigFile.h"

#include "base/rooted_file_name.h"
#include "rules_config/rule_document.h"

#include <QDomDocument>

#include <algorithm>
#include <iterator>

namespace {

QString attribute(const QDomNode& node, const char* name) {
    return node.attributes().namedItem(QLatin1String(name)).nodeValue();
}

QString childText(const QDomNode& node, const char* tagName) {
    return node.firstChildElement(QLatin1String(tagName)).text();
}

QString ruleKey(const NuxStandardCheckRule& rule) {
    if (rule.type == QLatin1String("without"))
        return rule.elementType + rule.propertyType;
    return rule.name;
}

} // namespace

NUXRuleConfigFile* NUXRuleConfigFile::m_instance = nullptr;

NUXRuleConfigFile* NUXRuleConfigFile::Single() {
    if (!m_instance)
        m_instance = new NUXRuleConfigFile();
    return m_instance;
}

// Deliberate: the path is still empty here, so the file read is always the rooted name alone, and a directory
// set later changes nothing.
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
    const QString fileName = m_configFilePath + QStringLiteral("\\FireStandardCheck.xml");
    const QDomDocument document = readRuleDocument(resolveRootedFileName(fileName));
    const QDomElement root = document.documentElement();
    for (QDomNode group = root.firstChild(); !group.isNull(); group = group.nextSibling()) {
        const QDomElement groupElement = group.toElement();
        // Deliberate: every node of a group is a rule, comments and text included.
        for (QDomNode node = groupElement.firstChild(); !node.isNull(); node = node.nextSibling()) {
            const NuxStandardCheckRule rule = analyzeRule(node);
            m_ruleMap[ruleKey(rule)].push_back(rule);
        }
    }
}

NuxStandardCheckRule NUXRuleConfigFile::analyzeRule(const QDomNode& node) {
    NuxStandardCheckRule rule;
    rule.name = node.nodeName();
    rule.elementType = attribute(node, "ElementType");
    rule.type = attribute(node, "Type");
    rule.propertyType = attribute(node, "PropertyType");
    rule.standard = attribute(node, "Standard");
    rule.referenceElementType = attribute(node, "ReferenceElementType");
    rule.constraintCondition = attribute(node, "ConstraintCondition");
    rule.distantValue = attribute(node, "DistantValue");
    rule.ruleDescription = childText(node, "RuleDescription");
    rule.ruleCatalog = childText(node, "RuleCatalog");
    rule.ruleDetailDescription = childText(node, "RuleDetailDescription");
    rule.objName = childText(node, "ObjName");
    rule.referenceObjName = childText(node, "ReferenceObjName");
    return rule;
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
