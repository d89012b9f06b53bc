#pragma once

#include "explain/explain_check.h"
#include "report/SiteReport.h"
#include "rules/rule_file.h"
#include "site_file/Site.h"

namespace firecheck {

/// Runs the check engine on a site, which becomes the current document meanwhile. The rules in use are asked
/// for so that nobody checks before the rule store has read its file. `progress` may not give the check up.
SiteReport checkSite(Site site, const std::string& fileName, const RuleMap& rulesInUse,
                     const firestandard::CheckProgress& progress = {});

} // namespace firecheck
