#pragma once

#include "report/SiteReport.h"
#include "rules/rule_file.h"
#include "site_file/Site.h"

namespace firecheck {

/// Runs the check engine on a site, which becomes the current document meanwhile. `rules` are those that the
/// engine uses.
SiteReport checkSite(Site site, const std::string& fileName, const RuleMap& rules);

} // namespace firecheck
