#pragma once

#include "rules_config/read_rules.h"

#include <QStringList>

#include <string>

/// The records of a map as "key: name name; key: name".
inline std::string outline(const firestandard::RuleMap& rules) {
    QStringList entries;
    for (auto entry = rules.cbegin(); entry != rules.cend(); ++entry) {
        QStringList names;
        for (const NuxStandardCheckRule& rule : *entry)
            names << rule.name;
        entries << entry.key() + ": " + names.join(' ');
    }
    return entries.join("; ").toStdString();
}
