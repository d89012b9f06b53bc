#include "report/html/overview.h"

#include "explain/Words.h"
#include "report/escape.h"
#include "report/html/markup.h"
#include "report/html/site_section.h"

namespace firecheck {

using firestandard::Words;

namespace {

QString numberCell(std::size_t count, const QString& classes = {}) {
    return "<td class=\"amount" + classes + "\">" + QString::number(count) + "</td>";
}

} // namespace

QString overviewRow(const SiteReport& report, std::size_t number) {
    const bool offends = report.violationCount() > report.acceptedCount();
    return element("tr", {},
                   "<td><a href=\"#" + siteId(number) + "\">" + siteTitle(report) + "</a></td><td>" +
                       escaped(report.fileName) + "</td>" + numberCell(report.objectCount) +
                       numberCell(report.violationCount(), offends ? " offending" : " clean") +
                       numberCell(report.acceptedCount()) + numberCell(report.unjudgedCount()));
}

QString overview(const QString& rows, std::size_t sites) {
    QString head;
    for (const QString& name : {Words::tr("Site"), Words::tr("File"), Words::tr("Objects"),
                                Words::tr("Violations"), Words::tr("Accepted"), Words::tr("Not judged")})
        head += "<th scope=\"col\">" + name + "</th>";
    return element(
        "nav", ofClass("overview"),
        "\n" + element("h1", {}, Words::tr("Fire-safety check of %n sites", "", static_cast<int>(sites))) +
            element("div", ofClass("scroll"),
                    "<table><thead><tr>" + head + "</tr></thead><tbody>\n" + rows + "</tbody></table>"));
}

} // namespace firecheck
