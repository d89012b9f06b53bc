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
    bool canOffend = true; ///< false where no value that was compared could break the limits as written
    std::size_t neverMeasuredPairs = 0; ///< pairs of types that the library has no measure for
    std::size_t unfit = 0;              ///< elements that it could compare nothing with
    std::string note;                   ///< what else there is to know of this judgement; mostly empty
    std::chrono::nanoseconds time{0};
};

/// An element that rules took up and left out, because it is unfit or because they ended before it.
struct UnjudgedElement {
    long long handle = 0;
    std::string reason;         ///< after its name: "its depth is not above 0"
    std::vector<QString> rules; ///< names, in the order in which they were run
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

    std::vector<Finding> findings;      ///< one for each record, rule by rule as in `counts`
    std::vector<RuleCount> counts;      ///< rules with violations, in the order of the rule map
    std::vector<ElementLabel> elements; ///< those named by what follows or the results, by ascending handle
    std::vector<JudgedRule> judged;     ///< in the order of the rule map
    std::vector<UnjudgedElement> unjudged; ///< by ascending handle, those of one reason together
    std::vector<PassedOver> notJudged;
    std::vector<ElementLabel> judgedByNoRule; ///< elements that no rule compared, in the order of the drawing

    std::size_t violationCount() const; ///< records, those included that findings only count
    std::size_t acceptedCount() const;  ///< of the records

    /// Of one element that breaks one rule of one clause in many records, as a gate does with every other
    /// gate of its corner, leaves the findings of kMostTold, those that are not accepted before the others.
    /// The last counts the rest.
    void tellFewOfEach();

    const NuxStandardCheckRule& record(const Finding& finding) const {
        return results[finding.entry].second[finding.index];
    }

    /// How many elements are left out by some rule.
    std::size_t unjudgedCount() const;

    /// Null for a handle that no element of the report has.
    const ElementLabel* element(long long handle) const;
};

} // namespace firestandard
