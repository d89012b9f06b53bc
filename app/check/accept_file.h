#pragma once

#include "report/SiteReport.h"

#include <string>
#include <vector>

namespace firecheck {

/// A violation that somebody answers for: known by its rule and the elements concerned, so that it stays
/// accepted while things are moved about.
struct Acceptance {
    std::string rule;
    std::vector<long long> handles; ///< ascending; none for a violation of the site as a whole
    std::string reason;
};

/// Reads a file of accepted violations: {"accepted": [{"rule": ..., "handles": ["413", "414"], "reason":
/// ...}]}. Every entry needs a reason. Throws InputError for anything else.
std::vector<Acceptance> loadAcceptances(const std::string& fileName);

/// Marks the findings that are accepted, and lists the acceptances that no finding matches as stale.
void acceptFindings(const std::vector<Acceptance>& acceptances, SiteReport& report);

/// The text of such a file with an entry for every finding of the report, reasons as given so far; those
/// still to be given are empty, which makes the file unreadable until somebody has given them.
std::string acceptFileText(const SiteReport& report);

} // namespace firecheck
