#pragma once

#include "rules_config/NuxStandardCheckRule.h"
#include "rules_config/RuleFileStatus.h"

#include <QMap>

namespace firestandard {

using RuleMap = QMap<QString, std::vector<NuxStandardCheckRule>>;

/// The rules of a rule file, filed as the rule store holds them. Empty when the file cannot be opened or
/// parsed, or when it is out of bounds (see rule_file_bounds.h); `status` then tells which. The name may be a
/// rooted one of the host.
RuleMap readRules(const QString& fileName, RuleFileStatus& status);

} // namespace firestandard
