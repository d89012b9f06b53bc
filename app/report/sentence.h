#pragma once

#include "report/SiteReport.h"

namespace firecheck {

/// What is wrong, as a planner would say it, without a full stop: 'dormitory 413 "Row C" stands 3.50 m from
/// dormitory 414; the rule asks for at least 4.00 m'. Names as the site file gives them.
std::string sentenceOf(const SiteReport& report, const NuxStandardCheckRule& record,
                       const std::vector<Measure>& measures);

/// 'dormitory 413 "Row C"', or "element 413" where nothing is known of it.
std::string elementPhrase(const SiteReport& report, long long handle);

} // namespace firecheck
