#include "report/missing_share.h"

namespace firecheck {

std::optional<double> missingShare(const firestandard::Finding& finding) {
    if (finding.measures.empty())
        return std::nullopt;
    const firestandard::Measure& measure = finding.measures.front();
    if (measure.minimum && measure.value < *measure.minimum)
        return (*measure.minimum - measure.value) / *measure.minimum;
    if (measure.maximum && measure.value > *measure.maximum)
        return (measure.value - *measure.maximum) / measure.value;
    return std::nullopt;
}

} // namespace firecheck
