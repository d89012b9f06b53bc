#pragma once

#include "explain/CheckReport.h"
#include "report/plan/PlanShape.h"
#include "site_file/DrawingSource.h"
#include "suggest/Suggestion.h"

namespace firecheck {

using firestandard::ElementLabel;
using firestandard::Finding;
using firestandard::JudgedRule;
using firestandard::kMetresPerMillimetre;
using firestandard::Measure;
using firestandard::PassedOver;
using firestandard::PlanPoint;
using firestandard::RuleCount;

/// By which findings are listed: the order of the rule file, the clauses that rules cite, or how much is
/// missing.
enum class FindingOrder { Rule, Clause, Missing };

/// What a check of one site found. Every format is a rendering of this.
struct SiteReport : firestandard::CheckReport {
    std::string fileName;
    std::string siteName;
    std::size_t objectCount = 0;
    DrawingUnit drawingUnit;     ///< of the drawing that the site was read from; mm for a site file
    std::vector<PlanShape> plan; ///< every element that can be drawn, in the order of the drawing
    FindingOrder order = FindingOrder::Rule;   ///< in which the findings stand
    std::size_t leftOutRules = 0;              ///< of the rule file, by a selection
    std::vector<std::string> staleAcceptances; ///< accepted violations that are no longer there
    /// What would remove the findings that are not accepted; nothing where nobody asked.
    std::optional<std::vector<Suggestion>> suggestions;
};

} // namespace firecheck
