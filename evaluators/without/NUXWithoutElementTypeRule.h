#pragma once

#include "engine/NUXRule.h"

/// Judges rules of type "without": a facility that the site must have. A rule with a property type asks for
/// an element with the use that the rule's name stands for, a rule without one for any element of the type.
class NUXWithoutElementTypeRule : public NUXRule {
public:
    NUXWithoutElementTypeRule();

    /// Removes the "without" rules from the entry of the element's type, and the entry with its last rule;
    /// answers true. A null element has no entry.
    bool removeWithoutRules(NUXElementObject* element, void* unused,
                            QMap<QString, std::vector<NuxStandardCheckRule>>& rules) override;

    /// Empty when the facility exists, otherwise one record that names no element. Without a model space
    /// every facility is missing.
    std::vector<NuxStandardCheckRule> check(UdDbBlock* modelSpace, const NuxStandardCheckRule& rule) override;

    /// Whether the element, already known to be of the rule's element type, has the use that the rule's name
    /// requires; false for a name without such a use and for an element of another class.
    virtual bool isRequiredUse(NUXElementObject* element, const NuxStandardCheckRule& rule);
};
