#pragma once

#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace firecheck {

/// A violation as a JSON report keeps it. Handles are decimal.
struct SavedFinding {
    std::string rule;
    std::string handle;
    std::set<std::string> related; ///< all of them when the report has the engine's results, else the nearest
    std::string sentence;
    bool isAccepted = false;
    std::size_t further = 0; ///< more of this rule and element, of which the report has nothing but the count
    std::size_t furtherAccepted = 0; ///< those of them that are accepted
    bool isOneOfMany = false; ///< all known from the results, of a rule and element with more than are told

    /// By how much the nearest measured value misses its limit, in metres or square metres; nothing for a
    /// violation without a measure.
    std::optional<double> missing;
    bool isTooFar = false; ///< it exceeds a maximum; further related elements then make it no worse
};

struct SavedSite {
    std::string file;
    std::string name;
    std::vector<SavedFinding>
        findings;                ///< in the order of the report; then those known from the results only
    std::set<std::string> rules; ///< those that had something to judge, or were looked for
    std::set<std::pair<std::string, std::string>> unjudged; ///< handle and rule
};

struct SavedReport {
    std::string fileName;
    std::vector<SavedSite> sites;
};

/// Reads what `check --format json` wrote. Throws InputError, with the place, for anything else.
SavedReport loadReport(const std::string& fileName);

} // namespace firecheck
