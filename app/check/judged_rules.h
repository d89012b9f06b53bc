#pragma once

#include "check/CheckRecorder.h"
#include "report/SiteReport.h"

#include <QMap>

namespace firecheck {

/// The runs of a check, each found again by the texts of its rule, which records are copies of. Rules that
/// are equal in all texts share the first of their runs.
class RuleRuns {
public:
    explicit RuleRuns(std::vector<RuleRun> runs);

    /// Null for a rule that was not run.
    const RuleRun* of(const NuxStandardCheckRule& rule) const;

private:
    std::vector<RuleRun> m_runs;
    QMap<QString, std::size_t> m_indexByTexts;
};

/// The outcome of each rule of the map, in its order. Reads the findings of the report.
std::vector<JudgedRule> judgedRules(const SiteReport& report, const RuleRuns& runs,
                                    const std::vector<NuxStandardCheckRule>& rules);

} // namespace firecheck
