#include "explain/CheckReport.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <set>
#include <tuple>

namespace firestandard {

std::size_t CheckReport::violationCount() const {
    return std::accumulate(
        findings.begin(), findings.end(), std::size_t(0),
        [](std::size_t sum, const Finding& finding) { return sum + finding.recordCount(); });
}

std::size_t CheckReport::acceptedCount() const {
    return std::accumulate(
        findings.begin(), findings.end(), std::size_t(0),
        [](std::size_t sum, const Finding& finding) { return sum + finding.acceptedCount(); });
}

void CheckReport::tellFewOfEach() {
    std::map<std::tuple<QString, QString, long long>, std::vector<Finding*>> groups;
    for (Finding& finding : findings)
        if (const NuxStandardCheckRule& its = record(finding); its.handle != 0 || finding.relatedCount > 0)
            groups[{its.name, its.standard, its.handle}].push_back(&finding);
    std::set<const Finding*> dropped;
    for (auto& [key, group] : groups) {
        if (group.size() <= kMostTold)
            continue;
        std::stable_partition(group.begin(), group.end(),
                              [](const Finding* finding) { return !finding->acceptedBecause; });
        const auto firstDropped = group.begin() + kMostTold;
        Finding& last = **std::max_element(group.begin(), firstDropped);
        for (auto each = firstDropped; each != group.end(); ++each) {
            last.further += (*each)->recordCount();
            last.furtherAccepted += (*each)->acceptedCount();
        }
        dropped.insert(firstDropped, group.end());
    }
    std::vector<Finding> told;
    for (Finding& finding : findings)
        if (dropped.count(&finding) == 0)
            told.push_back(std::move(finding));
    findings = std::move(told);
}

std::size_t CheckReport::unjudgedCount() const {
    std::size_t count = 0;
    for (std::size_t i = 0; i < unjudged.size(); ++i)
        count += i == 0 || unjudged[i].handle != unjudged[i - 1].handle;
    return count;
}

const ElementLabel* CheckReport::element(long long handle) const {
    const auto found =
        std::lower_bound(elements.begin(), elements.end(), handle,
                         [](const ElementLabel& label, long long wanted) { return label.handle < wanted; });
    return found != elements.end() && found->handle == handle ? &*found : nullptr;
}

} // namespace firestandard
