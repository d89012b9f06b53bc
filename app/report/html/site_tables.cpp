#include "report/html/site_tables.h"

#include "explain/Words.h"
#include "explain/sentence.h"
#include "report/clause_table.h"
#include "report/escape.h"
#include "report/html/finding_filters.h"
#include "report/html/markup.h"
#include "report/judgement_text.h"
#include "report/unjudged_text.h"

#include <QStringList>

namespace firecheck {

using firestandard::Words;

namespace {

QString row(const QStringList& cells) {
    QString text;
    for (const QString& cell : cells)
        text += "<td>" + cell + "</td>";
    return element("tr", {}, text);
}

QString headRow(const QStringList& names) {
    QString text;
    for (const QString& name : names)
        text += "<th scope=\"col\">" + name + "</th>";
    return "<thead><tr>" + text + "</tr></thead>";
}

/// Open, so that paper and readers without scripts have it; a script closes what is `foldable`.
QString table(const QString& summary, const QString& head, const QString& rows, bool isFoldable) {
    return element(
        "details", (isFoldable ? ofClass("foldable") : QString()) + " open",
        "<summary>" + summary + "</summary>\n" +
            element("div", ofClass("scroll"), "<table>" + head + "<tbody>\n" + rows + "</tbody></table>"));
}

QString notJudgedTable(const SiteReport& report) {
    QString rows;
    for (const firestandard::UnjudgedElement& unjudged : report.unjudged)
        rows += row({asSentence(unjudgedText(report, unjudged)), escaped(unjudgedByText(unjudged))});
    for (const PassedOver& passedOver : report.notJudged)
        rows += row({escaped(passedOver.what), escaped(passedOver.reason)});
    const int count = static_cast<int>(report.unjudgedCount() + report.notJudged.size());
    return rows.isEmpty() ? rows : table(Words::tr("Not judged: %n", "", count), {}, rows, false);
}

QString noRuleTable(const SiteReport& report) {
    QString rows;
    for (const ElementLabel& label : report.judgedByNoRule)
        rows += row({escaped(firestandard::labelPhrase(label))});
    const int count = static_cast<int>(report.judgedByNoRule.size());
    return rows.isEmpty() ? rows : table(Words::tr("Judged by no rule: %n", "", count), {}, rows, false);
}

/// With what the rule file says of each: there it tells what a rule leaves out of its clause.
QString rulesOf(const ClauseOutcome& clause) {
    QString items;
    for (const JudgedRule* judged : clause.rules)
        items += element("li", {},
                         "<b>" + escaped(ruleHeading(judged->rule)) + "</b> " +
                             escaped(judged->rule.ruleDetailDescription));
    return element("ul", {}, items);
}

QString clauseRows(const SiteReport& report) {
    QString rows;
    for (const ClauseOutcome& clause : clauseTable(report))
        rows +=
            row({escaped(clauseName(clause.standard)), escaped(clauseOutcomeText(clause)), rulesOf(clause)});
    return rows;
}

QString byClauseTable(const SiteReport& report) {
    return table(Words::tr("By clause"),
                 headRow({Words::tr("Clause"), Words::tr("Outcome"),
                          Words::tr("Rules, and what the rule file says of them")}),
                 clauseRows(report), true);
}

QString judgedTable(const SiteReport& report) {
    std::size_t looked = 0;
    QString rows;
    for (const JudgedRule& judged : report.judged) {
        looked += judged.verdict == JudgedRule::Verdict::Judged ? 1 : 0;
        rows += row({escaped(judged.rule.name), escaped(judged.rule.ruleDescription),
                     escaped(judgementText(judged))});
    }
    const QString summary = report.judged.size() == 1 ? Words::tr("What was judged: %1 of 1 rule").arg(looked)
                                                      : Words::tr("What was judged: %1 of %n rules", "",
                                                                  static_cast<int>(report.judged.size()))
                                                            .arg(looked);
    return table(summary, headRow({Words::tr("Rule"), Words::tr("Finds"), Words::tr("Outcome")}), rows, true);
}

} // namespace

QString siteTables(const SiteReport& report) {
    return element("div", ofClass("tables"),
                   "\n" + notJudgedTable(report) + noRuleTable(report) + byClauseTable(report) +
                       judgedTable(report));
}

} // namespace firecheck
