#include "explain/CheckReport.h"

#include <algorithm>

namespace firestandard {

std::size_t CheckReport::acceptedCount() const {
    return static_cast<std::size_t>(
        std::count_if(findings.begin(), findings.end(),
                      [](const Finding& finding) { return finding.acceptedBecause.has_value(); }));
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
