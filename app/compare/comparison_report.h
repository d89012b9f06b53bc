#pragma once

#include "compare/compare_reports.h"
#include "json/Json.h"

#include <string>

namespace firecheck {

/// For people: what appeared, got worse, got better, is gone or was lost, site by site.
std::string comparisonText(const std::vector<SiteComparison>& comparisons);

/// The same for programs: {"sites": [...]}.
Json comparisonJson(const std::vector<SiteComparison>& comparisons);

} // namespace firecheck
