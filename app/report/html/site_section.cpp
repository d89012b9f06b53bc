#include "report/html/site_section.h"

#include "explain/Words.h"
#include "report/counts.h"
#include "report/escape.h"
#include "report/html/finding_list.h"
#include "report/html/markup.h"
#include "report/html/plan_pane.h"
#include "report/html/site_tables.h"

namespace firecheck {

using firestandard::Words;

namespace {

QString verdict(const SiteReport& report) {
    if (report.findings.empty())
        return element("p", ofClass("verdict clean"), Words::tr("No violations"));
    const bool areAllAccepted = report.acceptedCount() == report.violationCount();
    return element("p", ofClass(areAllAccepted ? "verdict excused" : "verdict offending"),
                   Words::tr("%1 of %2", "violations, rules")
                       .arg(violationsText(report.violationCount()), rulesText(report.counts.size())));
}

QString header(const SiteReport& report) {
    QString facts;
    const auto add = [&](const QString& fact) { facts += element("p", {}, fact); };
    if (report.acceptedCount() > 0)
        add(acceptedText(report.acceptedCount()));
    if (report.unjudgedCount() > 0)
        add(unjudgedElementsText(report.unjudgedCount()));
    if (report.leftOutRules > 0)
        add(leftOutRulesText(report.leftOutRules));
    add(objectsText(report.objectCount));
    add(escaped(report.fileName));
    return element("header", {}, "\n" + element("h1", {}, siteTitle(report)) + verdict(report) + facts);
}

QString staleList(const SiteReport& report) {
    if (report.staleAcceptances.empty())
        return {};
    QString items;
    for (const std::string& entry : report.staleAcceptances)
        items += element("li", {}, escaped(entry));
    return element("section", ofClass("stale"),
                   element("h2", {}, Words::tr("Accepted before, but no longer there")) +
                       element("ul", {}, items));
}

} // namespace

QString siteId(std::size_t number) {
    return "s" + QString::number(number);
}

QString siteTitle(const SiteReport& report) {
    return escaped(report.siteName.empty() ? report.fileName : report.siteName);
}

QString siteSection(const SiteReport& report, std::size_t number) {
    const std::vector<MergedFinding> merged = mergedFindings(report);
    const PlanIds ids{siteId(number) + "-"};
    return element("section", ofClass("site") + " id=\"" + siteId(number) + "\"",
                   "\n" + header(report) +
                       element("div", ofClass("panes"),
                               "\n" + planPane(report, merged, ids) +
                                   element("div", ofClass("list-pane"),
                                           "\n" + findingList(report, merged, ids) + staleList(report))) +
                       siteTables(report));
}

} // namespace firecheck
