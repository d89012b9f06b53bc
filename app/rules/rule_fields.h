#pragma once

#include "rules_config/NuxStandardCheckRule.h"
#include "site_file/Json.h"

#include <array>

struct RuleTextField {
    const char* name;
    QString NuxStandardCheckRule::*member;
};

/// The thirteen texts of a rule, in their order.
const std::array<RuleTextField, 13>& ruleTextFields();

/// An object of all thirteen texts.
Json ruleTexts(const NuxStandardCheckRule& rule);
