#pragma once

#include "json/Json.h"
#include "lint/LintFindings.h"

namespace firecheck {

/// One line for each finding, with its place, and a line that sums up.
std::string lintReportText(const std::string& fileName, const std::vector<LintFinding>& findings);

Json lintReportJson(const std::string& fileName, const std::vector<LintFinding>& findings);

/// "1 finding", "2 findings".
std::string countedFindings(std::size_t count);

} // namespace firecheck
