#pragma once

#include "report/merged_findings.h"
#include "report/plan/plan_svg.h"

namespace firecheck {

/// The violations of a site with what chooses among them: grouped by rules where the findings come rule by
/// rule, else one list in their order. Those that several rules share stand once, under all their headings.
QString findingList(const SiteReport& report, const std::vector<MergedFinding>& merged, const PlanIds& ids);

} // namespace firecheck
