#pragma once

#include "rules_config/read_rules.h"

#include <QByteArray>

#include <string>

class QXmlStreamReader;

namespace firecheck {

using firestandard::RuleMap;

/// The rule file in use where none is named, in the language in use: the one installed beside the executable
/// or, in a source tree that was never installed, the one of that tree.
std::string defaultRuleFile();

/// The bytes of a rule file. Throws InputError for what is no file, cannot be read, or is out of the bounds
/// of rule files.
QByteArray ruleFileContent(const std::string& fileName);

/// Throws InputError for a file that cannot be read or is not well-formed XML. The library reads past
/// whatever is wrong with its rule file, so the file is looked at beforehand.
void requireWellFormed(const std::string& fileName);

/// What requireWellFormed throws once the reader has met an error.
[[noreturn]] void refuseIllFormed(const std::string& fileName, const QXmlStreamReader& reader);

/// Has the rule store read `fileName`, which is known to be well-formed, and answers its rules. The store
/// reads one file in the life of the process, so this is called once. Throws InputError for a file that holds
/// no rule.
const RuleMap& useRules(const std::string& fileName);

/// As above, for any file; throws InputError also for one that is not well-formed.
const RuleMap& loadRules(const std::string& fileName);

} // namespace firecheck
