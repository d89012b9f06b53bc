#pragma once

#include "rules_config/NuxStandardCheckRule.h"

#include <QString>

#include <array>

namespace firestandard {

struct RuleTextField {
    const char* name;
    QString NuxStandardCheckRule::*member;
};

/// The thirteen texts of a rule, in their order.
const std::array<RuleTextField, 13>& ruleTextFields();

} // namespace firestandard
