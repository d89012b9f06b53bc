#pragma once

#include <cstddef>

namespace firestandard {

/// What became of the rule file of the rule store, which itself only ever tells of rules.
struct RuleFileStatus {
    bool isFound = false;  ///< it is a file that could be opened and read
    bool isParsed = false; ///< it is within the bounds of rule files and well-formed
    std::size_t ruleCount = 0;
};

/// Of the file that NUXRuleConfigFile::Single() read; reads it when nobody has yet.
RuleFileStatus ruleFileStatus();

} // namespace firestandard
