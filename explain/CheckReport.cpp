#include "explain/CheckReport.h"

#include <algorithm>

namespace firestandard {

std::size_t CheckReport::acceptedCount() const {
    return static_cast<std::size_t>(
        std::count_if(findings.begin(), findings.end(),
                      [](const Finding& finding) { return finding.acceptedBecause.has_value(); }));
}

const ElementLabel* CheckReport::element(long long handle) const {
    const auto found =
        std::lower_bound(elements.begin(), elements.end(), handle,
                         [](const ElementLabel& label, long long wanted) { return label.handle < wanted; });
    return found != elements.end() && found->handle == handle ? &*found : nullptr;
}

std::vector<long long> relatedFromNearest(const Finding& finding, const NuxStandardCheckRule& record) {
    std::vector<long long> handles;
    for (const Measure& measure : finding.measures)
        if (measure.kind == Measure::Kind::Distance)
            handles.push_back(measure.other);
    if (handles.size() < record.relatedHandles.size())
        handles.assign(record.relatedHandles.begin(), record.relatedHandles.end());
    return handles;
}

} // namespace firestandard
