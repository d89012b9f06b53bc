#pragma once

#include "json/Json.h"
#include "rules_config/NuxStandardCheckRule.h"

namespace firecheck {

/// An object of all thirteen texts.
Json ruleTexts(const NuxStandardCheckRule& rule);

} // namespace firecheck
