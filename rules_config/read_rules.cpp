#include "rules_config/read_rules.h"

#include "base/rooted_file_name.h"
#include "rules_config/rule_file_bounds.h"

#include <QBuffer>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>

namespace firestandard {

namespace {

/// Empty for what is no file: opening a pipe would wait for its other end.
QByteArray contentOf(const QString& fileName) {
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || file.size() > kLargestRuleFile || !file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.read(file.size()); // the room is taken before the first byte, so no more than needed
}

/// Without a document element when there is nothing to read.
QDomDocument documentOf(const QString& fileName) {
    QDomDocument document;
    QBuffer content;
    content.setData(contentOf(fileName));
    if (isWithinBounds(content.data()) && content.open(QIODevice::ReadOnly))
        document.setContent(&content);
    return document;
}

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

NuxStandardCheckRule analyzeRule(const QDomNode& node) {
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

} // namespace

RuleMap readRules(const QString& fileName) {
    RuleMap rules;
    const QDomDocument document = documentOf(resolveRootedFileName(fileName));
    const QDomElement root = document.documentElement();
    for (QDomNode group = root.firstChild(); !group.isNull(); group = group.nextSibling()) {
        const QDomElement groupElement = group.toElement();
        // Deliberate: every node of a group is a rule, comments and text included, as existing rule files
        // have been read.
        for (QDomNode node = groupElement.firstChild(); !node.isNull(); node = node.nextSibling()) {
            const NuxStandardCheckRule rule = analyzeRule(node);
            rules[ruleKey(rule)].push_back(rule);
        }
    }
    return rules;
}

} // namespace firestandard
