#pragma once

#include "lint/LintFindings.h"

namespace firecheck {

/// What the library would pass over in silence in a rule file, in the order of the file. Throws InputError
/// for a file that cannot be read, is not well-formed XML, or holds no rule.
std::vector<LintFinding> lintRuleFile(const std::string& fileName);

} // namespace firecheck
