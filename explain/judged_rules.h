#pragma once

#include "explain/CheckRecorder.h"
#include "explain/CheckReport.h"

#include <QHash>

#include <limits>
#include <vector>

namespace firestandard {

/// Numbers rules from 0, those that are equal in all texts alike. Borrows them.
class RuleNumbers {
public:
    static constexpr std::size_t kUnknown = std::numeric_limits<std::size_t>::max();

    /// The rule's number, its own when it has none yet.
    std::size_t add(const NuxStandardCheckRule& rule);
    std::size_t of(const NuxStandardCheckRule& rule) const;

private:
    std::vector<const NuxStandardCheckRule*> m_rules;
    QHash<QString, std::vector<std::size_t>> m_byName;
};

/// The runs of a check, each found again by the texts of its rule, which records are copies of. Rules that
/// are equal in all texts share the first of their runs.
class RuleRuns {
public:
    explicit RuleRuns(std::vector<RuleRun> runs);
    RuleRuns(const RuleRuns&) = delete;
    RuleRuns& operator=(const RuleRuns&) = delete;

    /// Null for a rule that was not run.
    const RuleRun* of(const NuxStandardCheckRule& rule) const;

    /// What the record's rule measured about its element; null for none.
    const Offences* offences(const NuxStandardCheckRule& record) const;

private:
    std::vector<RuleRun> m_runs;
    RuleNumbers m_numbers;
    std::vector<std::size_t> m_first; ///< run by the rule's number
};

/// The outcome of each rule of the map, in its order. Reads the findings of the report.
std::vector<JudgedRule> judgedRules(const CheckReport& report, const RuleRuns& runs,
                                    const std::vector<NuxStandardCheckRule>& rules);

} // namespace firestandard
