#pragma once

#include "cad/UdDbObject.h"
#include "evaluators/CheckObserver.h"
#include "rules_config/NuxStandardCheckRule.h"
#include "site/bodies.h"

#include <vector>

namespace firestandard {

/// What the check of one rule comes to: its violations, and what the observer of the check, if there is one,
/// is told on the way.
class RuleOutcome {
public:
    explicit RuleOutcome(const NuxStandardCheckRule& rule) : m_rule(rule), m_observer(checkObserver()) {}

    /// Appends a violation that names no element: a copy of the rule.
    NuxStandardCheckRule& addViolation() {
        m_violations.push_back(m_rule);
        return m_violations.back();
    }
    /// Appends a violation by this element.
    NuxStandardCheckRule& addViolation(const UdDbObject& element) {
        NuxStandardCheckRule& violation = addViolation();
        violation.handle = element.Handle().GetID();
        return violation;
    }

    std::vector<NuxStandardCheckRule> takeViolations() { return std::move(m_violations); }

    /// Null when nobody watches: whatever serves to tell it stands behind a test of this.
    CheckObserver* observer() const { return m_observer; }

private:
    const NuxStandardCheckRule& m_rule;
    CheckObserver* const m_observer;
    std::vector<NuxStandardCheckRule> m_violations;
};

/// Adds an element to those that take part in the violation.
inline void relate(NuxStandardCheckRule& violation, const UdDbObject& element) {
    violation.relatedHandles.push_back(element.Handle().GetID());
}

/// What to tell of an element that has no body.
inline NotJudged whyNoBody(const NUXElementObject* element) {
    return hasCrossingOutline(element) ? NotJudged::OutlineCrossesItself : NotJudged::NoOutline;
}

} // namespace firestandard
