#include "lint/lint_element_types.h"

#include "lint/lint_attributes.h"
#include "rules/element_type_names.h"
#include "rules/vocabulary.h"
#include "text/words.h"

#include <algorithm>

namespace firecheck {

namespace {

/// `expected` is the identifier of the rule's name; empty when the name does not tell.
bool lintReadType(const RuleFileNode& rule, const std::string& name, const std::string& expected,
                  LintFindings& findings) {
    const RuleFileAttribute* attribute = rule.attribute(name);
    if (!attribute || attribute->value.empty()) {
        findings.add(attribute ? attribute->place : rule.place, "missing-attribute",
                     filled(Words::tr("Without \"%1\" the rule concerns no element."), name), expected);
        return false;
    }
    const std::string& given = attribute->value;
    const std::string instead = reportedInstead(given);
    if (!instead.empty()) {
        findings.add(attribute->place, "unreported-element-type",
                     filled(Words::tr("No element reports \"%1\"."), given), instead);
        return false;
    }
    if (!expected.empty() && given != expected) {
        findings.add(attribute->place, "other-element-type",
                     filled(Words::tr("The rule's name is about %1, not %2."), expected, given), expected);
        return false;
    }
    return true;
}

} // namespace

bool lintElementTypes(const RuleFileNode& rule, const std::vector<std::string>& read, const RuleName* known,
                      LintFindings& findings) {
    bool isRight = true;
    for (const std::string name : {"ElementType", "ReferenceElementType"}) {
        const RuleFileAttribute* attribute = rule.attribute(name);
        const bool isRead = std::find(read.begin(), read.end(), name) != read.end();
        if (attribute && !attribute->value.empty() && !isElementTypeName(attribute->value)) {
            isRight = false;
            findings.add(attribute->place, "unknown-element-type",
                         filled(Words::tr("\"%1\" is no element type identifier."), attribute->value),
                         nearestOf(attribute->value, elementTypeNames()));
        } else if (isRead) {
            const bool isFirst = name == "ElementType";
            const std::string expected = !known    ? std::string()
                                         : isFirst ? known->elementType
                                                   : known->referenceElementType;
            isRight = lintReadType(rule, name, expected, findings) && isRight;
        }
    }
    return isRight;
}

} // namespace firecheck
