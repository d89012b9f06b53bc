#pragma once

#include "rules_config/NuxStandardCheckRule.h"

/// The key under which the store files a rule.
QString ruleKey(const NuxStandardCheckRule& rule);
