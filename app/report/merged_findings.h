#pragma once

#include "report/SiteReport.h"

#include <QString>

namespace firecheck {

/// What a reader takes for one violation: the findings that say the same of the same elements under several
/// rules, as one cable over one yard does. One rule has at most one of them. Numbers are those of the
/// findings, from 1, ascending.
struct MergedFinding {
    std::vector<std::size_t> numbers;
    std::vector<std::size_t> rules; ///< of each number, its index in the counts
    std::size_t records = 0;        ///< that the findings stand for
    std::size_t accepted = 0;       ///< of the records
};

/// In the order of the first number of each.
std::vector<MergedFinding> mergedFindings(const SiteReport& report);

/// For each finding the index of its rule in the counts.
std::vector<std::size_t> ruleIndices(const SiteReport& report);

/// Runs of numbers by their ends: "7–12, 15".
QString numbersText(const std::vector<std::size_t>& numbers);

} // namespace firecheck
