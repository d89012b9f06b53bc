#pragma once

#include "lint/LintFindings.h"
#include "site_file/Json.h"

/// One line for each finding, with its place, and a line that sums up.
std::string lintReportText(const std::string& fileName, const std::vector<LintFinding>& findings);

Json lintReportJson(const std::string& fileName, const std::vector<LintFinding>& findings);

/// "1 finding", "2 findings".
std::string countedFindings(std::size_t count);
