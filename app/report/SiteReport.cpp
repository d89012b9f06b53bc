#include "report/SiteReport.h"

#include <algorithm>
#include <numeric>

std::size_t SiteReport::violationCount() const {
    return std::accumulate(counts.begin(), counts.end(), std::size_t{0},
                           [](std::size_t sum, const RuleCount& count) { return sum + count.violations; });
}

const ElementLabel* SiteReport::element(long long handle) const {
    const auto found =
        std::lower_bound(elements.begin(), elements.end(), handle,
                         [](const ElementLabel& label, long long wanted) { return label.handle < wanted; });
    return found != elements.end() && found->handle == handle ? &*found : nullptr;
}
