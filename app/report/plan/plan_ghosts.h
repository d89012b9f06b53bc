#pragma once

#include "report/SiteReport.h"
#include "report/plan/PlanFrame.h"

namespace firecheck {

/// The suggestion for a finding, by its place in the report's findings; null where none was looked for.
const Suggestion* suggestionFor(const SiteReport& report, std::size_t finding);

/// What elements would be after the changes that are suggested: their outlines, and arrows from where those
/// stand that are moved.
QString planGhosts(const Suggestion& suggestion, const PlanFrame& frame);

} // namespace firecheck
