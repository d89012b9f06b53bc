#pragma once

#include "report/SiteReport.h"

#include <QStringList>

namespace firecheck {

/// Which rules a report tells of, by patterns of their names with * and ?. All are judged all the same, so
/// that what is told of one does not depend on the others.
class RuleSelection {
public:
    /// No pattern to select selects all. Throws InputError for a pattern that fits no rule.
    RuleSelection(const QStringList& selected, const QStringList& ignored,
                  const std::vector<QString>& ruleNames);

    /// Takes what is about other rules out of the report, but for the engine's two maps.
    void applyTo(SiteReport& report) const;

private:
    bool isTold(const QString& ruleName) const;

    std::vector<QString> m_leftOut;
};

} // namespace firecheck
