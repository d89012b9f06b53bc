#pragma once

#include "compare/saved_report.h"

#include <string>
#include <vector>

namespace firecheck {

/// A violation before and after.
struct ChangedFinding {
    SavedFinding before;
    SavedFinding after;
};

/// A violation that is no longer reported though nothing says that it was mended.
struct LostFinding {
    SavedFinding before;
    std::string reason;
};

/// How the violations of one site changed from one check to another. Violations are told apart by rule,
/// element and related elements, elements by their handles. Of an element that breaks one rule in more
/// records than findings tell, a violation that names another element than before is no worse for it. Where
/// a report only counts some of these, those that the other report does not tell are not judged one by one:
/// there are more of them, which is worse, fewer, which is better, or as many.
struct SiteComparison {
    std::string file; ///< of the later report; of the earlier one for a site that is no longer there
    std::string name;
    std::vector<SavedFinding> appeared;
    std::vector<ChangedFinding>
        worse; ///< further from the limit, with elements that were not related before, or counting more
    std::vector<ChangedFinding> better;
    std::vector<SavedFinding> gone;
    std::vector<LostFinding> lost; ///< the rule was not run, or the element not judged
    std::size_t unchanged = 0;

    /// Whether anything that is not accepted appeared, got worse or was lost.
    bool needsAttention() const;
};

/// Sites go together by the names of their files; the only site of either report does with the other's. A
/// site that one report lacks has only violations that appeared, or only lost ones.
std::vector<SiteComparison> compareReports(const SavedReport& before, const SavedReport& after);

} // namespace firecheck
