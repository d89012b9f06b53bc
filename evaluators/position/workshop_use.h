#pragma once

#include <QString>

/// A rule about open sheds of one use. The codes are those of the distance rules and deliberately not those
/// of the absence rules.
struct WorkshopUse {
    const char* ruleName;
    int use;
};

template <std::size_t count>
bool isWorkshopOfRule(const WorkshopUse (&rows)[count], const QString& ruleName, int use) {
    for (const WorkshopUse& row : rows) {
        if (row.use == use && ruleName == QLatin1String(row.ruleName))
            return true;
    }
    return false;
}
