#include "rules_config/read_rules.h"

#include "base/rooted_file_name.h"
#include "rules_config/rule_file_bounds.h"

#include <QBuffer>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>

#include <optional>

namespace firestandard {

namespace {

/// Nothing for what is no file, since opening a pipe would wait for its other end, and for what cannot be
/// read.
std::optional<QByteArray> contentOf(const QString& fileName) {
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    if (file.size() > kLargestRuleFile)
        return QByteArray();
    return file.read(file.size()); // the room is taken before the first byte, so no more than needed
}

/// Whether it is well-formed. What stands before a mistake is in the document all the same.
bool parse(const QByteArray& bytes, QDomDocument& document) {
    QBuffer content;
    content.setData(bytes);
    return isWithinBounds(bytes) && content.open(QIODevice::ReadOnly) && document.setContent(&content);
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

RuleMap readRules(const QString& fileName, RuleFileStatus& status) {
    RuleMap rules;
    QDomDocument document;
    const std::optional<QByteArray> content = contentOf(resolveRootedFileName(fileName));
    status = RuleFileStatus();
    status.isFound = content.has_value();
    status.isParsed = parse(content.value_or(QByteArray()), document);
    const QDomElement root = document.documentElement();
    for (QDomNode group = root.firstChild(); !group.isNull(); group = group.nextSibling()) {
        const QDomElement groupElement = group.toElement();
        // Deliberate: every node of a group is a rule, comments and text included, as existing rule files
        // have been read.
        for (QDomNode node = groupElement.firstChild(); !node.isNull(); node = node.nextSibling()) {
            const NuxStandardCheckRule rule = analyzeRule(node);
            rules[ruleKey(rule)].push_back(rule);
            ++status.ruleCount;
        }
    }
    return rules;
}

} // namespace firestandard
