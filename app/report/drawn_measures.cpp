#include "report/drawn_measures.h"

namespace firecheck {

std::vector<const firestandard::Measure*> drawnMeasures(const NuxStandardCheckRule& record,
                                                        const firestandard::Finding& finding) {
    const bool nearestOnly = record.type == QLatin1String("position");
    std::vector<const firestandard::Measure*> measures;
    for (const firestandard::Measure& measure : finding.measures) {
        if (measure.points)
            measures.push_back(&measure);
        if (nearestOnly)
            break;
    }
    return measures;
}

} // namespace firecheck
