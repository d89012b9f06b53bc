#include "lint/lint_rule.h"

#include "lint/lint_attributes.h"
#include "lint/lint_distance_rule.h"
#include "lint/lint_element_types.h"
#include "lint/lint_limit_texts.h"
#include "rules/vocabulary.h"
#include "text/words.h"

#include <algorithm>
#include <set>

namespace firecheck {

namespace {

const std::vector<std::string> kAttributes = {"Type",        "ElementType",          "PropertyType",
                                              "Standard",    "ReferenceElementType", "ConstraintCondition",
                                              "DistantValue"};
const std::vector<std::string> kTexts = {"ObjName", "ReferenceObjName", "RuleDescription", "RuleCatalog",
                                         "RuleDetailDescription"};

bool contains(const std::vector<std::string>& list, const std::string& text) {
    return std::find(list.begin(), list.end(), text) != list.end();
}

std::vector<std::string> namesOfType(const std::string& type) {
    std::vector<std::string> names;
    for (const RuleName& name : ruleNames())
        if (name.type == type)
            names.push_back(name.name);
    return names;
}

void lintTexts(const RuleFileNode& rule, LintFindings& findings) {
    std::set<std::string> seen;
    for (const RuleFileNode& child : rule.children) {
        if (child.kind == RuleFileNode::Kind::Text)
            findings.add(child.place, "unread-text",
                         filled(Words::tr("Text directly in a rule is not read.")));
        if (child.kind != RuleFileNode::Kind::Element)
            continue;
        lintUnknownAttributes(child, {}, findings);
        if (!contains(kTexts, child.name))
            findings.add(child.place, "unread-element",
                         filled(Words::tr("The element \"%1\" is never read."), child.name),
                         nearestOf(child.name, kTexts));
        else if (!seen.insert(child.name).second)
            findings.add(child.place, "unread-element",
                         filled(Words::tr("Only the first \"%1\" of a rule is read."), child.name));
    }
}

void lintType(const RuleFileNode& rule, LintFindings& findings) {
    const RuleName* known = findRuleName(rule.name);
    const RuleFileAttribute* type = rule.attribute("Type");
    if (!type) {
        findings.add(rule.place, "unknown-type",
                     filled(Words::tr("The rule has no \"Type\": no evaluator judges it.")),
                     known ? known->type : std::string());
        return;
    }
    const std::string near = nearestOf(type->value, ruleTypes());
    findings.add(type->place, "unknown-type",
                 filled(Words::tr("No evaluator is of type \"%1\"."), type->value),
                 near.empty() && known ? known->type : near);
}

/// The name as its type knows it; a finding, and null, where the type ought to know it and does not. Distance
/// rules may have any name that means nothing else; which of them matter is seen with their element types.
const RuleName* lintName(const RuleFileNode& rule, const std::string& type, LintFindings& findings) {
    const RuleName* known = findRuleName(rule.name);
    if (known && known->type == type)
        return known;
    const bool isNameConsulted = type != "without" || !rule.value("PropertyType").empty();
    if (known)
        findings.add(
            rule.place, "unknown-name",
            filled(Words::tr("This name belongs to rules of type \"%1\", not to those of type \"%2\"."),
                   known->type, type));
    else if (type != "distant" && isNameConsulted)
        findings.add(rule.place, "unknown-name",
                     filled(Words::tr("No evaluator of type \"%1\" knows this name."), type),
                     nearestOf(rule.name, namesOfType(type)));
    return nullptr;
}

void lintIneffective(const RuleFileNode& rule, const std::vector<std::string>& read, const RuleName* known,
                     LintFindings& findings) {
    for (const char* name : {"PropertyType", "ConstraintCondition", "DistantValue"}) {
        const RuleFileAttribute* attribute = rule.attribute(name);
        if (!attribute || contains(read, name))
            continue;
        findings.add(attribute->place, "ineffective-attribute",
                     known && !known->limits.empty()
                         ? filled(Words::tr("\"%1\" changes nothing for this rule. Fixed limit: %2"),
                                  attribute->name, known->limits)
                         : filled(Words::tr("\"%1\" changes nothing for this rule."), attribute->name));
    }
}

} // namespace

void lintRule(const RuleFileNode& rule, LintFindings& findings) {
    lintUnknownAttributes(rule, kAttributes, findings);
    lintTexts(rule, findings);

    const std::string type = rule.value("Type");
    if (!contains(ruleTypes(), type)) {
        lintType(rule, findings);
        lintElementTypes(rule, {}, nullptr, findings);
        return;
    }
    const RuleName* known = lintName(rule, type, findings);
    const std::vector<std::string> read = known ? known->reads : attributesRead(type);
    lintIneffective(rule, read, known, findings);
    const bool areTypesRight = lintElementTypes(rule, read, known, findings);
    if (type == "distant")
        lintDistanceRule(rule, areTypesRight, findings);
    lintLimitTexts(rule, findings);
    if (type == "without" && known && rule.value("PropertyType").empty())
        findings.add(
            rule.place, "ineffective-name",
            filled(Words::tr("Without a \"PropertyType\" the name means nothing: any %1 satisfies the rule."),
                   known->elementType));
}

} // namespace firecheck
