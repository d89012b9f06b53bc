#pragma once

#include "json/Json.h"
#include "rules_config/NuxStandardCheckRule.h"

#include <array>

namespace firecheck {

struct RuleTextField {
    const char* name;
    QString NuxStandardCheckRule::*member;
};

/// The thirteen texts of a rule, in their order.
const std::array<RuleTextField, 13>& ruleTextFields();

/// An object of all thirteen texts.
Json ruleTexts(const NuxStandardCheckRule& rule);

} // namespace firecheck
