#include "rules_config/NuxStandardCheckRule.h"

NuxStandardCheckRule::NuxStandardCheckRule() = default;
NuxStandardCheckRule::NuxStandardCheckRule(const NuxStandardCheckRule& other) = default;
NuxStandardCheckRule& NuxStandardCheckRule::operator=(const NuxStandardCheckRule& other) = default;
NuxStandardCheckRule::~NuxStandardCheckRule() = default;
