#pragma once

#include "cad/UdDbObject.h"
#include "rules_config/NuxStandardCheckRule.h"

/// A copy of the rule that names the offending element.
inline NuxStandardCheckRule violationOf(const NuxStandardCheckRule& rule, const UdDbObject& element) {
    NuxStandardCheckRule record = rule;
    record.handle = element.Handle().GetID();
    return record;
}

/// Adds an element to those that take part in the violation.
inline void relate(NuxStandardCheckRule& record, const UdDbObject& element) {
    record.relatedHandles.push_back(element.Handle().GetID());
}
