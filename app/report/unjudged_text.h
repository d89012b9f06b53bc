#pragma once

#include "report/SiteReport.h"

namespace firecheck {

/// 'future building 5 "Hall": its outline crosses itself'.
std::string unjudgedText(const SiteReport& report, const firestandard::UnjudgedElement& element);

/// By which rules: "by Distant_FutureHouseToWoodYard and 2 other rules".
std::string unjudgedByText(const firestandard::UnjudgedElement& element);

/// That a violation counts again: "accepted at 3.50 m, but worse now: one group of houses".
std::string outgrownText(const Finding& finding);

} // namespace firecheck
