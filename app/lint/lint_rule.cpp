#include "lint/lint_rule.h"

#include "lint/lint_attributes.h"
#include "lint/lint_distance_rule.h"
#include "lint/lint_element_types.h"
#include "lint/lint_limit_texts.h"
#include "rules/vocabulary.h"

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
            findings.add(child.place, "unread-text", "Text directly in a rule is not read.");
        if (child.kind != RuleFileNode::Kind::Element)
            continue;
        lintUnknownAttributes(child, {}, findings);
        if (!contains(kTexts, child.name))
            findings.add(child.place, "unread-element", "The element \"" + child.name + "\" is never read.",
                         nearestOf(child.name, kTexts));
        else if (!seen.insert(child.name).second)
            findings.add(child.place, "unread-element",
                         "Only the first \"" + child.name + "\" of a rule is read.");
    }
}

void lintType(const RuleFileNode& rule, LintFindings& findings) {
    const RuleName* known = findRuleName(rule.name);
    const RuleFileAttribute* type = rule.attribute("Type");
    if (!type) {
        findings.add(rule.place, "unknown-type", "The rule has no \"Type\": no evaluator judges it.",
                     known ? known->type : std::string());
        return;
    }
    const std::string near = nearestOf(type->value, ruleTypes());
    findings.add(type->place, "unknown-type", "No evaluator is of type \"" + type->value + "\".",
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
        findings.add(rule.place, "unknown-name",
                     "This name belongs to rules of type \"" + known->type + "\", not to those of type \"" +
                         type + "\".");
    else if (type != "distant" && isNameConsulted)
        findings.add(rule.place, "unknown-name", "No evaluator of type \"" + type + "\" knows this name.",
                     nearestOf(rule.name, namesOfType(type)));
    return nullptr;
}

void lintIneffective(const RuleFileNode& rule, const std::vector<std::string>& read, const RuleName* known,
                     LintFindings& findings) {
    for (const char* name : {"PropertyType", "ConstraintCondition", "DistantValue"}) {
        const RuleFileAttribute* attribute = rule.attribute(name);
        if (!attribute || contains(read, name))
            continue;
        const std::string limits = known && !known->limits.empty() ? " Fixed limit: " + known->limits : "";
        findings.add(attribute->place, "ineffective-attribute",
                     "\"" + attribute->name + "\" changes nothing for this rule." + limits);
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
        findings.add(rule.place, "ineffective-name",
                     "Without a \"PropertyType\" the name means nothing: any " + known->elementType +
                         " satisfies the rule.");
}

} // namespace firecheck
