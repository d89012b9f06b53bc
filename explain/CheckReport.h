#pragma once

#include "evaluators/CheckObserver.h"
#include "explain/Finding.h"
#include "rules_config/NuxStandardCheckRule.h"

#include <QString>

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace firestandard {

/// An element as reports name it. Texts are UTF-8; class and name are empty where nobody gives them, the
/// identifier where the object has none or does not open.
struct ElementLabel {
    long long handle = 0;
    std::string className;
    std::string identifier;
    std::string name;
    std::string noun;               ///< what a planner calls such an element: "dormitory", "wood yard"
    std::optional<PlanPoint> place; ///< middle of its extents in plan, metres; nothing without geometry
};

struct RuleCount {
    QString ruleName;
    std::size_t violations = 0;
};

/// The outcome of one rule of the rule file. Rules that are equal in all their texts share an entry.
struct JudgedRule {
    enum class Verdict { Judged, NothingToJudge, NoEvaluator };

    NuxStandardCheckRule rule;
    Verdict verdict = Verdict::Judged;
    std::size_t found = 0; ///< elements to judge; of an absence rule, those that it looks for (0 or 1)
    std::map<NotJudged, std::size_t> unjudged; ///< those of them that it did not judge, by why
    std::size_t pairs = 0;                     ///< pairs of elements compared by distance
    std::size_t offending = 0;                 ///< elements that break the rule
    std::size_t violations = 0;                ///< records, those about the site as a whole included
    std::string note;                          ///< what else there is to know of this judgement; mostly empty
    std::chrono::nanoseconds time{0};
};

/// A rule or an object that was passed over, and why.
struct PassedOver {
    std::string what;
    std::string reason;
};

/// What a check found, explained. Every value is a copy: it outlives the drawing and the next check.
struct CheckReport {
    // The engine's two maps, in their order.
    std::vector<std::pair<QString, std::vector<NuxStandardCheckRule>>> results;
    std::vector<std::pair<QString, std::vector<bool>>> checkState;

    std::vector<Finding> findings;      ///< one for each record, rule by rule in the order of `counts`
    std::vector<RuleCount> counts;      ///< rules with violations, in the order of the rule map
    std::vector<ElementLabel> elements; ///< those that the results name, by ascending handle
    std::vector<JudgedRule> judged;     ///< in the order of the rule map
    std::vector<PassedOver> notJudged;

    std::size_t violationCount() const { return findings.size(); }
    std::size_t acceptedCount() const;

    const NuxStandardCheckRule& record(const Finding& finding) const {
        return results[finding.entry].second[finding.index];
    }

    /// Null for a handle that no element of the report has.
    const ElementLabel* element(long long handle) const;
};

/// The elements that a finding relates to: from the nearest on where their distances are known, else in the
/// order of the record.
std::vector<long long> relatedFromNearest(const Finding& finding, const NuxStandardCheckRule& record);

} // namespace firestandard
