#pragma once

#include "json/Json.h"
#include "site_lint/lint_site.h"

namespace firecheck {

/// One line for each finding, with its place, and a line that sums up.
std::string siteLintText(const SiteFindings& findings);

Json siteLintJson(const SiteFindings& findings);

/// "1 doubt", "2 doubts".
std::string countedDoubts(std::size_t count);

} // namespace firecheck
