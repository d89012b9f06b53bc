#include "report/html/site_section.h"

#include "explain/sentence.h"
#include "report/escape.h"
#include "report/judgement_text.h"
#include "report/plan/plan_svg.h"
#include "report/unjudged_text.h"

#include <QStringList>

#include <map>

namespace firecheck {

namespace {

QString counted(std::size_t count, const QString& noun) {
    return QString::number(count) + " " + noun + (count == 1 ? "" : "s");
}

QString element(const char* name, const QString& attributes, const QString& content) {
    return QStringLiteral("<") + name + attributes + ">" + content + "</" + name + ">\n";
}

/// The start of an element whose content follows piece by piece.
QString opened(const char* name, const QString& attributes) {
    return QStringLiteral("<") + name + attributes + ">\n";
}

QString ofClass(const QString& classes) {
    return " class=\"" + classes + "\"";
}

/// Begins with a capital letter and ends with a full stop.
QString asSentence(const std::string& text) {
    QString sentence = QString::fromStdString(text);
    if (!sentence.isEmpty())
        sentence[0] = sentence[0].toUpper();
    return escaped(sentence) + ".";
}

class SiteSection {
public:
    SiteSection(const SiteReport& report, std::size_t number, const ReportWriter::Sink& sink)
        : m_report(report), m_sink(sink), m_id("s" + QString::number(number)), m_ids{m_id + "-"} {}

    void write() const {
        put("<section class=\"site\" id=\"" + m_id + "\">\n" + header() + opened("div", ofClass("panes")) +
            planPane());
        writeListPane();
        put("</div>\n" +
            element("div", ofClass("tables"), "\n" + notJudgedTable() + noRuleTable() + judgedTable()) +
            "</section>\n");
    }

private:
    QString header() const {
        const std::size_t accepted = m_report.acceptedCount();
        const QString title =
            m_report.siteName.empty() ? escaped(m_report.fileName) : escaped(m_report.siteName);
        QString verdict = m_report.findings.empty() ? "No violations"
                                                    : counted(m_report.violationCount(), "violation") +
                                                          " of " + counted(m_report.counts.size(), "rule");
        if (accepted > 0)
            verdict += ", " + QString::number(accepted) + " accepted";
        if (m_report.leftOutRules > 0)
            verdict += ", " + counted(m_report.leftOutRules, "rule") + " left out";
        const std::size_t unjudged = m_report.unjudgedCount();
        if (unjudged > 0)
            verdict += ", " + counted(unjudged, "element") + " not judged";
        const QString state = m_report.findings.empty() ? "verdict clean" : "verdict offending";
        return element(
            "header", {},
            element("h1", {}, title) + element("p", ofClass(state), verdict) +
                element("p", {},
                        escaped(m_report.fileName) + " · " + counted(m_report.objectCount, "object")));
    }

    QString planPane() const {
        const QString svg = planSvg(m_report, m_ids);
        if (svg.isEmpty())
            return element("p", ofClass("plan-pane"), "Nothing of this site can be drawn.");
        const QString tools =
            "<div class=\"tools\"><button type=\"button\" class=\"zoom-in\" aria-label=\"Zoom in\">+</button>"
            "<button type=\"button\" class=\"zoom-out\" aria-label=\"Zoom out\">−</button>"
            "<button type=\"button\" class=\"zoom-all\">All</button></div>\n";
        return element(
            "figure", ofClass("plan-pane"),
            "\n" + element("div", ofClass("drawing"), "\n" + svg + tools) +
                element("figcaption", {},
                        "Numbers are those of the list. Lines are drawn between the closest points. "
                        "Houses are drawn with their stairs."));
    }

    void writeListPane() const {
        put(opened("div", ofClass("list-pane")));
        put(m_report.findings.empty() ? element("p", ofClass("rule"), "Nothing breaks a rule.") : filters());
        std::size_t number = 0;
        for (std::size_t rule = 0; rule < m_report.counts.size(); ++rule)
            writeRuleGroup(rule, number);
        put(staleList() + "</div>\n");
    }

    QString filters() const {
        QString rules = "<option value=\"\">All rules</option>";
        for (std::size_t i = 0; i < m_report.counts.size(); ++i)
            rules += "<option value=\"" + QString::number(i) + "\">" + escaped(m_report.counts[i].ruleName) +
                     " (" + QString::number(m_report.counts[i].violations) + ")</option>";
        QString elements = "<option value=\"\">All elements</option>";
        for (const auto& [handle, violations] : violationsByElement())
            elements += "<option value=\"" + QString::number(handle) + "\">" +
                        escaped(firestandard::elementPhrase(m_report, handle)) + " (" +
                        QString::number(violations) + ")</option>";
        return element("form", ofClass("filters"),
                       "<label>Rule<select name=\"rule\">" + rules + "</select></label>\n" +
                           "<label>Element<select name=\"element\">" + elements + "</select></label>\n" +
                           "<button type=\"reset\">Show all</button>\n<output></output>");
    }

    std::map<long long, std::size_t> violationsByElement() const {
        std::map<long long, std::size_t> violations;
        for (const Finding& finding : m_report.findings)
            for (const long long handle : concerned(finding))
                ++violations[handle];
        return violations;
    }

    /// The offending element, then the others from the nearest on.
    std::vector<long long> concerned(const Finding& finding) const {
        std::vector<long long> handles = finding.related;
        const long long offender = m_report.record(finding).handle;
        if (offender != 0)
            handles.insert(handles.begin(), offender);
        return handles;
    }

    void writeRuleGroup(std::size_t rule, std::size_t& number) const {
        const RuleCount& count = m_report.counts[rule];
        const NuxStandardCheckRule& first = m_report.record(m_report.findings[number]);
        const QString title = first.ruleDescription.isEmpty() ? first.name : first.ruleDescription;
        QString source = escaped(first.name);
        if (!first.standard.isEmpty())
            source += " · " + escaped(first.standard);
        put(opened("section", ofClass("rule " + colourClass(rule))) +
            element("h2", {},
                    "<span>" + escaped(title) + "</span>" + "<span class=\"count\">" +
                        QString::number(count.violations) + "</span>") +
            element("p", ofClass("source"), source) +
            (first.ruleDetailDescription.isEmpty()
                 ? QString()
                 : element("p", ofClass("detail"), escaped(first.ruleDetailDescription))) +
            opened("ol", ofClass("findings")));
        do {
            put(findingItem(rule, ++number));
        } while (number < m_report.findings.size() &&
                 m_report.record(m_report.findings[number]).name == count.ruleName);
        put("</ol>\n</section>\n");
    }

    QString findingItem(std::size_t rule, std::size_t number) const {
        const Finding& finding = m_report.findings[number - 1];
        const std::vector<long long> handles = concerned(finding);
        QStringList all;
        for (const long long handle : handles)
            all << QString::number(handle);
        const long long offender = m_report.record(finding).handle;
        const QString attributes = ofClass(finding.acceptedBecause ? "finding accepted" : "finding") +
                                   " id=\"" + m_ids.finding(number) + "\" data-number=\"" +
                                   QString::number(number) + "\" data-rule=\"" + QString::number(rule) +
                                   "\" data-handle=\"" + QString::number(offender) + "\" data-elements=\"" +
                                   all.join(' ') + "\" data-focus=\"" + focus(finding, all).join(' ') + "\"";
        const QString target = handles.empty() ? m_id : m_ids.element(handles.front());
        QString content = "<span class=\"number\">" + QString::number(number) + "</span>" +
                          "<a class=\"sentence\" href=\"#" + target + "\">" + asSentence(finding.sentence) +
                          "</a>\n";
        if (finding.acceptedBecause)
            content += element("p", ofClass("reason"), "Accepted: " + escaped(*finding.acceptedBecause));
        if (finding.outgrown)
            content += element("p", ofClass("reason"), asSentence(outgrownText(finding)));
        if (finding.further > 0)
            content += element("p", ofClass("reason"), asSentence(furtherText(finding)));
        return element("li", attributes, content + places(finding));
    }

    /// What the plan turns to: the whole group, or of a long one the offender and what is nearest to it.
    static QStringList focus(const Finding& finding, const QStringList& all) {
        const bool isLong = finding.measureCount > 1 && finding.relatedCount >= firestandard::kMostTold;
        return isLong ? QStringList(all.mid(0, 2)) : all;
    }

    QString places(const Finding& finding) const {
        QString items;
        for (const long long handle : concerned(finding))
            items += element("li", {}, placeText(handle));
        const std::size_t others = finding.relatedCount - finding.related.size();
        if (others > 0)
            items += element("li", {}, "and " + counted(others, "other"));
        return items.isEmpty() ? items : element("ul", ofClass("places"), "\n" + items);
    }

    QString placeText(long long handle) const {
        const ElementLabel* label = m_report.element(handle);
        QString text = "#" + QString::number(handle);
        if (!label)
            return text;
        for (const std::string& part : {label->name, label->className, label->identifier})
            if (!part.empty())
                text += " · " + escaped(part);
        if (label->place)
            text += " · at (" + QString::number(label->place->x, 'f', 2) + ", " +
                    QString::number(label->place->y, 'f', 2) + ") m";
        return text;
    }

    QString staleList() const {
        if (m_report.staleAcceptances.empty())
            return {};
        QString items;
        for (const std::string& entry : m_report.staleAcceptances)
            items += element("li", {}, escaped(entry));
        return element("section", ofClass("rule"),
                       element("h2", {}, "Accepted before, but no longer there") + element("ul", {}, items));
    }

    QString judgedTable() const {
        std::size_t looked = 0;
        QString rows;
        for (const JudgedRule& judged : m_report.judged) {
            looked += judged.verdict == JudgedRule::Verdict::Judged ? 1 : 0;
            rows += element("tr", {},
                            "<td>" + escaped(judged.rule.name) + "</td><td>" +
                                escaped(judged.rule.ruleDescription) + "</td><td>" +
                                escaped(judgementText(judged)) + "</td>");
        }
        return element(
            "details", {},
            "<summary>What was judged: " + QString::number(looked) + " of " +
                counted(m_report.judged.size(), "rule") + "</summary>\n" +
                element("div", ofClass("scroll"),
                        "<table><thead><tr><th>Rule</th><th>Finds</th><th>Outcome</th></tr></thead>"
                        "<tbody>\n" +
                            rows + "</tbody></table>"));
    }

    QString notJudgedTable() const {
        const std::size_t count = m_report.unjudged.size() + m_report.notJudged.size();
        QString rows;
        const auto row = [](const QString& what, const QString& by) {
            return element("tr", {}, "<td>" + what + "</td><td>" + by + "</td>");
        };
        for (const firestandard::UnjudgedElement& unjudged : m_report.unjudged)
            rows += row(asSentence(unjudgedText(m_report, unjudged)), escaped(unjudgedByText(unjudged)));
        for (const PassedOver& passedOver : m_report.notJudged)
            rows += row(escaped(passedOver.what), escaped(passedOver.reason));
        return count == 0 ? QString() : openTable("Not judged: " + QString::number(count), rows);
    }

    QString noRuleTable() const {
        QString rows;
        for (const ElementLabel& label : m_report.judgedByNoRule)
            rows += element("tr", {}, "<td>" + escaped(firestandard::labelPhrase(label)) + "</td>");
        return rows.isEmpty()
                   ? rows
                   : openTable("Judged by no rule: " + QString::number(m_report.judgedByNoRule.size()), rows);
    }

    /// Open from the start: what was not looked at must not be overlooked.
    static QString openTable(const QString& summary, const QString& rows) {
        return element("details", " open",
                       "<summary>" + summary + "</summary>\n" +
                           element("div", ofClass("scroll"), "<table><tbody>\n" + rows + "</tbody></table>"));
    }

    void put(const QString& piece) const { m_sink(piece.toStdString()); }

    const SiteReport& m_report;
    const ReportWriter::Sink& m_sink;
    const QString m_id;
    const PlanIds m_ids;
};

} // namespace

void writeSiteSection(const SiteReport& report, std::size_t number, const ReportWriter::Sink& sink) {
    SiteSection(report, number, sink).write();
}

} // namespace firecheck
