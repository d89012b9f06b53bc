#include "report/finding_order.h"

#include "report/clause_table.h"
#include "report/missing_share.h"

#include <algorithm>

namespace firecheck {

void orderFindings(SiteReport& report, FindingOrder order) {
    const auto precedes = [&](const Finding& a, const Finding& b) {
        return order == FindingOrder::Clause
                   ? clausePrecedes(report.record(a).standard, report.record(b).standard)
                   : missingShare(a).value_or(-1.0) > missingShare(b).value_or(-1.0);
    };
    if (order != FindingOrder::Rule)
        std::stable_sort(report.findings.begin(), report.findings.end(), precedes);
    report.order = order;
}

QString orderName(FindingOrder order) {
    switch (order) {
    case FindingOrder::Clause:
        return QStringLiteral("clause");
    case FindingOrder::Missing:
        return QStringLiteral("missing");
    case FindingOrder::Rule:
        break;
    }
    return QStringLiteral("rule");
}

FindingOrder orderNamed(const QString& name) {
    for (const FindingOrder order : {FindingOrder::Clause, FindingOrder::Missing})
        if (orderName(order) == name)
            return order;
    return FindingOrder::Rule;
}

} // namespace firecheck
