#pragma once

#include "rules_config/NuxStandardCheckRule.h"

#include <QString>

#include <string>
#include <utility>
#include <vector>

/// An element as reports name it. Texts are UTF-8; class and name are empty where the site file gives none,
/// the identifier where the object has none or does not open.
struct ElementLabel {
    long long handle = 0;
    std::string className;
    std::string identifier;
    std::string name;
};

struct RuleCount {
    QString ruleName;
    std::size_t violations = 0;
};

/// A rule or an object that was passed over, and why.
struct NotJudged {
    std::string what;
    std::string reason;
};

/// What a check of one site found. Every format is a rendering of this.
struct SiteReport {
    std::string fileName;
    std::string siteName;
    std::size_t objectCount = 0;

    // The engine's two maps, in their order.
    std::vector<std::pair<QString, std::vector<NuxStandardCheckRule>>> results;
    std::vector<std::pair<QString, std::vector<bool>>> checkState;

    std::vector<RuleCount> counts;      ///< rules with violations, in the order of the rule map
    std::vector<ElementLabel> elements; ///< those that the results name, by ascending handle
    std::vector<NotJudged> notJudged;

    std::size_t violationCount() const;

    /// Null for a handle that no element of the report has.
    const ElementLabel* element(long long handle) const;
};
