#pragma once

#include "rules_config/NuxStandardCheckRule.h"

#include <QMap>

/// The rule map that every check of this process uses: that of the shipped rule file.
const QMap<QString, std::vector<NuxStandardCheckRule>>& shippedRules();

/// A rule of the shipped file, by its name.
const NuxStandardCheckRule& shippedRule(const char* name);
