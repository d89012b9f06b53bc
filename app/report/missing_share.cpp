#include "report/missing_share.h"

#include "explain/Words.h"

#include <algorithm>
#include <cmath>

namespace firecheck {

using firestandard::Words;

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

QString missingShareText(const firestandard::Finding& finding) {
    const auto share = missingShare(finding);
    if (!share)
        return {};
    const QString percent = QString::number(std::max(1L, std::lround(*share * 100.0)));
    const firestandard::Measure& measure = finding.measures.front();
    return measure.minimum && measure.value < *measure.minimum
               ? Words::tr("%1 % missing", "of the distance asked for").arg(percent)
               : Words::tr("%1 % too much", "of the value measured").arg(percent);
}

} // namespace firecheck
