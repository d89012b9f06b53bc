#pragma once

#include "report/merged_findings.h"
#include "report/plan/plan_svg.h"

namespace firecheck {

/// The plan of a site with its tools, its legend, and the numbers that its clusters stand for.
QString planPane(const SiteReport& report, const std::vector<MergedFinding>& merged, const PlanIds& ids);

} // namespace firecheck
