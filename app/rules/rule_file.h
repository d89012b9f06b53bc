#pragma once

#include "rules_config/read_rules.h"

#include <string>

namespace firecheck {

using firestandard::RuleMap;

/// The rule file in use where none is named: the one installed beside the executable or, in a source tree
/// that was never installed, the one of that tree.
std::string defaultRuleFile();

/// Throws InputError for a file that cannot be read or is not well-formed XML. The library reads past
/// whatever is wrong with its rule file, so the file is looked at beforehand.
void requireWellFormed(const std::string& fileName);

/// Has the rule store read `fileName`, and answers its rules. The store reads one file in the life of the
/// process, so this is called once. Throws InputError for a file that cannot be read, is not well-formed XML,
/// or holds no rule.
const RuleMap& loadRules(const std::string& fileName);

} // namespace firecheck
