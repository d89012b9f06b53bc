#pragma once

#include "report/SiteReport.h"

namespace firecheck {

/// What became of the rules that cite one clause.
struct ClauseOutcome {
    QString standard;                     ///< as the rule file has it; empty for rules that cite none
    std::vector<const JudgedRule*> rules; ///< in the order of the rule file
    std::size_t judgedRules = 0;          ///< those that had something to judge
    std::size_t offending = 0;            ///< elements that break at least one of them
    std::size_t violations = 0;           ///< records
    std::size_t accepted = 0;             ///< of the records
};

/// One row for each text by which the rules cite a clause, by ascending clause.
/// Borrows the report.
std::vector<ClauseOutcome> clauseTable(const SiteReport& report);

/// What was looked at and what came of it: "3 of 5 rules judged, 2 violations by 1 element".
QString clauseOutcomeText(const ClauseOutcome& clause);

/// The clause; where rules cite none, that they do so.
QString clauseName(const QString& standard);

/// That one clause comes before another: numbers in them count as numbers, and no clause comes last.
bool clausePrecedes(const QString& a, const QString& b);

} // namespace firecheck
