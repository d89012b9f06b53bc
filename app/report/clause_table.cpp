#include "report/clause_table.h"

#include "explain/Words.h"
#include "report/counts.h"

#include <QHash>

#include <algorithm>
#include <set>

namespace firecheck {

using firestandard::Words;

namespace {

/// The end of the digits, or of the one other character, that starts at `from`.
QString::size_type endOfPart(const QString& text, QString::size_type from) {
    QString::size_type end = from + 1;
    while (text[from].isDigit() && end < text.size() && text[end].isDigit())
        ++end;
    return end;
}

class ClauseRows {
public:
    ClauseOutcome& of(const QString& standard) {
        const auto known = m_index.constFind(standard);
        if (known != m_index.constEnd())
            return m_rows[*known];
        m_index.insert(standard, m_rows.size());
        m_rows.emplace_back();
        m_rows.back().standard = standard;
        return m_rows.back();
    }

    std::vector<ClauseOutcome> take() { return std::move(m_rows); }

private:
    QHash<QString, std::size_t> m_index;
    std::vector<ClauseOutcome> m_rows;
};

QString offendingText(const ClauseOutcome& clause) {
    const int offending = static_cast<int>(clause.offending);
    const QString records = violationsText(clause.violations);
    if (offending == 0)
        return records;
    return offending == 1 ? Words::tr("%1 by 1 element", "violations, such as \"2 violations\"").arg(records)
                          : Words::tr("%1 by %n elements", "violations, such as \"2 violations\"", offending)
                                .arg(records);
}

} // namespace

std::vector<ClauseOutcome> clauseTable(const SiteReport& report) {
    ClauseRows rows;
    for (const JudgedRule& judged : report.judged) {
        ClauseOutcome& clause = rows.of(judged.rule.standard);
        clause.rules.push_back(&judged);
        clause.judgedRules += judged.verdict == JudgedRule::Verdict::Judged ? 1 : 0;
    }
    std::set<std::pair<QString, long long>> offenders;
    for (const Finding& finding : report.findings) {
        const NuxStandardCheckRule& record = report.record(finding);
        ClauseOutcome& clause = rows.of(record.standard);
        clause.violations += finding.recordCount();
        clause.accepted += finding.acceptedCount();
        if (record.handle != 0 && offenders.emplace(record.standard, record.handle).second)
            ++clause.offending;
    }
    std::vector<ClauseOutcome> table = rows.take();
    std::stable_sort(table.begin(), table.end(), [](const ClauseOutcome& a, const ClauseOutcome& b) {
        return clausePrecedes(a.standard, b.standard);
    });
    return table;
}

QString clauseOutcomeText(const ClauseOutcome& clause) {
    const QString rules = clause.rules.size() == 1
                              ? Words::tr("%1 of 1 rule judged").arg(clause.judgedRules)
                              : Words::tr("%1 of %n rules judged", "", static_cast<int>(clause.rules.size()))
                                    .arg(clause.judgedRules);
    if (clause.judgedRules == 0)
        return rules;
    if (clause.violations == 0)
        return Words::tr("%1, no violations", "rules judged").arg(rules);
    const QString offending = offendingText(clause);
    if (clause.accepted == 0)
        return Words::tr("%1, %2", "rules judged, violations").arg(rules, offending);
    return Words::tr("%1, %2, %3 accepted", "rules judged, violations, number")
        .arg(rules, offending, QString::number(clause.accepted));
}

QString clauseName(const QString& standard) {
    return standard.isEmpty() ? Words::tr("No clause is cited") : standard;
}

bool clausePrecedes(const QString& a, const QString& b) {
    if (a.isEmpty() || b.isEmpty())
        return !a.isEmpty();
    QString::size_type i = 0;
    QString::size_type j = 0;
    while (i < a.size() && j < b.size()) {
        const QString left = a.mid(i, endOfPart(a, i) - i);
        const QString right = b.mid(j, endOfPart(b, j) - j);
        if (left != right)
            return left.size() != right.size() ? left.size() < right.size() : left < right;
        i += left.size();
        j += right.size();
    }
    return a.size() - i < b.size() - j;
}

} // namespace firecheck
