#include "report/html/finding_filters.h"

#include "explain/Words.h"
#include "explain/sentence.h"
#include "report/clause_table.h"
#include "report/escape.h"
#include "report/finding_order.h"
#include "report/html/markup.h"

#include <map>

namespace firecheck {

using firestandard::Words;

namespace {

QString labelled(const QString& name, const QString& control) {
    return "<label>" + name + control + "</label>\n";
}

QString option(const QString& value, const QString& text, const QString& attributes = {}) {
    return "<option value=\"" + value + "\"" + attributes + ">" + text + "</option>";
}

QString withCount(const QString& text, std::size_t count) {
    return Words::tr("%1 (%2)", "something and how many there are").arg(text, QString::number(count));
}

QString ruleOptions(const SiteReport& report) {
    std::map<std::size_t, const NuxStandardCheckRule*> records;
    const std::vector<std::size_t> rules = ruleIndices(report);
    for (std::size_t i = 0; i < rules.size(); ++i)
        records.emplace(rules[i], &report.record(report.findings[i]));
    std::map<QString, std::size_t> clausePlaces;
    for (const ClauseOutcome& clause : clauseTable(report))
        clausePlaces.emplace(clause.standard, clausePlaces.size());
    QString options = option({}, Words::tr("All rules"));
    for (const auto& [rule, record] : records)
        options += option(QString::number(rule),
                          withCount(escaped(ruleHeading(*record)), report.counts[rule].violations),
                          " data-heading=\"" + escaped(ruleHeading(*record)) + "\" data-clause=\"" +
                              escaped(clauseName(record->standard)) + "\" data-clause-place=\"" +
                              QString::number(clausePlaces[record->standard]) + "\"");
    return options;
}

QString elementOptions(const SiteReport& report, const std::vector<MergedFinding>& merged) {
    std::map<long long, std::size_t> violations;
    for (const MergedFinding& finding : merged)
        for (const long long handle : concernedElements(report, report.findings[finding.numbers.front() - 1]))
            violations[handle] += finding.records;
    QString options = option({}, Words::tr("All elements"));
    for (const auto& [handle, count] : violations)
        options += option(QString::number(handle),
                          withCount(escaped(firestandard::elementPhrase(report, handle)), count));
    return options;
}

QString orderOptions(FindingOrder written) {
    QString options;
    for (const auto& [order, text] : {std::pair(FindingOrder::Rule, Words::tr("by rule")),
                                      std::pair(FindingOrder::Clause, Words::tr("by clause")),
                                      std::pair(FindingOrder::Missing, Words::tr("by how much is missing"))})
        options += option(orderName(order), text, order == written ? " selected" : "");
    return options;
}

} // namespace

QString ruleHeading(const NuxStandardCheckRule& rule) {
    return rule.ruleDescription.isEmpty() ? rule.name : rule.ruleDescription;
}

std::vector<long long> concernedElements(const SiteReport& report, const Finding& finding) {
    std::vector<long long> handles = finding.related;
    const long long offender = report.record(finding).handle;
    if (offender != 0)
        handles.insert(handles.begin(), offender);
    return handles;
}

QString findingFilters(const SiteReport& report, const std::vector<MergedFinding>& merged) {
    const QString attributes = ofClass("filters") + " data-shown=\"" +
                               Words::tr("Showing %1 of %2 violations", "by a script") + "\"";
    QString fields =
        labelled(Words::tr("Rule"), "<select name=\"rule\">" + ruleOptions(report) + "</select>") +
        labelled(Words::tr("Element"),
                 "<select name=\"element\">" + elementOptions(report, merged) + "</select>") +
        labelled(Words::tr("Name or handle"),
                 "<input type=\"search\" name=\"search\" autocomplete=\"off\">") +
        labelled(Words::tr("Order"), "<select name=\"order\">" + orderOptions(report.order) + "</select>");
    if (report.acceptedCount() > 0)
        fields += element("label", ofClass("check"),
                          "<input type=\"checkbox\" name=\"open\">" + Words::tr("Hide what is accepted"));
    return element(
        "form", attributes,
        "\n" + fields + "<button type=\"reset\">" + Words::tr("Show all") + "</button>\n" +
            "<output></output>" +
            element("p", ofClass("hint"), Words::tr("n and p choose the next and the previous one.")));
}

} // namespace firecheck
