#pragma once

#include "report/SiteReport.h"

#include <QString>

namespace firecheck {

/// What was not judged, what each clause came to, and what was judged by each rule.
QString siteTables(const SiteReport& report);

} // namespace firecheck
