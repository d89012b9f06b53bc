#pragma once

#include "report/SiteReport.h"

#include <QString>

namespace firecheck {

/// Puts the findings into an order; equal ones stay as they are. What misses most comes first, what nothing
/// was measured of last.
void orderFindings(SiteReport& report, FindingOrder order);

/// "rule", "clause" or "missing", as options and pages call it.
QString orderName(FindingOrder order);

/// The inverse of orderName(); Rule for anything else.
FindingOrder orderNamed(const QString& name);

} // namespace firecheck
