#include "report/html/finding_list.h"

#include "explain/Words.h"
#include "explain/sentence.h"
#include "report/clause_table.h"
#include "report/counts.h"
#include "report/escape.h"
#include "report/html/finding_filters.h"
#include "report/html/markup.h"
#include "report/missing_share.h"
#include "report/plan/plan_ghosts.h"
#include "report/unjudged_text.h"
#include "suggest/suggestion_text.h"

#include <QStringList>

#include <algorithm>
#include <map>

namespace firecheck {

using firestandard::Words;

namespace {

QString coordinateText(double metres) {
    return QString::number(metres, 'f', 2);
}

QStringList asTexts(const std::vector<std::size_t>& numbers) {
    QStringList texts;
    for (const std::size_t number : numbers)
        texts << QString::number(number);
    return texts;
}

class FindingList {
public:
    FindingList(const SiteReport& report, const std::vector<MergedFinding>& merged, const PlanIds& ids)
        : m_report(report), m_merged(merged), m_ids(ids) {}

    QString html() const {
        if (m_report.findings.empty())
            return element("p", ofClass("rule"), Words::tr("Nothing breaks a rule."));
        return findingFilters(m_report, m_merged) +
               element("div", ofClass(isByRule() ? "groups" : "groups names-rules"), "\n" + groups());
    }

private:
    bool isByRule() const { return m_report.order == FindingOrder::Rule; }

    /// One for each set of rules, or clauses, that findings share, in the order of their first findings.
    QString groups() const {
        std::map<QString, std::size_t> placeOf;
        std::vector<std::vector<std::size_t>> members;
        for (std::size_t i = 0; i < m_merged.size(); ++i) {
            const auto [place, isNew] = placeOf.emplace(groupKey(m_merged[i]), members.size());
            if (isNew)
                members.emplace_back();
            members[place->second].push_back(i);
        }
        QString text;
        for (const std::vector<std::size_t>& group : members)
            text += this->group(group);
        return text;
    }

    QString groupKey(const MergedFinding& merged) const {
        switch (m_report.order) {
        case FindingOrder::Rule:
            return asTexts(merged.rules).join(' ');
        case FindingOrder::Clause:
            return clausesOf(merged).join('\n');
        case FindingOrder::Missing:
            break;
        }
        return {};
    }

    QStringList clausesOf(const MergedFinding& merged) const {
        QStringList clauses;
        for (const std::size_t number : merged.numbers)
            clauses << m_report.record(m_report.findings[number - 1]).standard;
        clauses.removeDuplicates();
        std::sort(clauses.begin(), clauses.end(), clausePrecedes);
        for (QString& clause : clauses)
            clause = clauseName(clause);
        return clauses;
    }

    QString group(const std::vector<std::size_t>& members) const {
        const MergedFinding& first = m_merged[members.front()];
        QString heads;
        if (m_report.order == FindingOrder::Clause)
            heads = element("h2", {}, escaped(clausesOf(first).join("; ")));
        for (std::size_t i = 0; isByRule() && i < first.rules.size(); ++i)
            heads += ruleHead(first.rules[i], m_report.findings[first.numbers[i] - 1], recordsOf(members, i),
                              first.rules.size() == 1);
        QString items;
        for (const std::size_t i : members)
            items += item(m_merged[i]);
        return element("section", ofClass("rule"),
                       "\n" + element("div", ofClass("heads"), "\n" + heads) +
                           element("ol", ofClass("findings"), "\n" + items));
    }

    /// Under the rule that stands at a place among those of each member.
    std::size_t recordsOf(const std::vector<std::size_t>& members, std::size_t rule) const {
        std::size_t records = 0;
        for (const std::size_t i : members)
            records += m_report.findings[m_merged[i].numbers[rule] - 1].recordCount();
        return records;
    }

    QString ruleHead(std::size_t rule, const Finding& finding, std::size_t count, bool hasDetail) const {
        const NuxStandardCheckRule& record = m_report.record(finding);
        QString source = escaped(record.name);
        if (!record.standard.isEmpty())
            source += " · " + escaped(record.standard);
        return element("h2", {},
                       "<span class=\"badge " + colourClasses(rule) + "\"></span><span>" +
                           escaped(ruleHeading(record)) + "</span><span class=\"count\">" +
                           QString::number(count) + "</span>") +
               element("p", ofClass("source"), source) +
               (hasDetail && !record.ruleDetailDescription.isEmpty()
                    ? element("p", ofClass("detail"), escaped(record.ruleDetailDescription))
                    : QString());
    }

    const Finding& findingOf(const MergedFinding& merged) const {
        return m_report.findings[merged.numbers.front() - 1];
    }

    QString item(const MergedFinding& merged) const {
        const Finding& finding = findingOf(merged);
        const std::vector<long long> handles = concernedElements(m_report, finding);
        QString content =
            "<span class=\"number badge " + colourClasses(merged.rules.front()) + "\">" +
            numbersText(merged.numbers) + anchors(merged) + "</span>" + "<a class=\"sentence\" href=\"#" +
            (handles.empty() ? m_ids.finding(merged.numbers.front()) : m_ids.element(handles.front())) +
            "\">" + asSentence(finding.sentence) + "</a>\n";
        if (!isByRule())
            for (const std::size_t number : merged.numbers)
                content += element("p", ofClass("of-rule"),
                                   escaped(ruleHeading(m_report.record(m_report.findings[number - 1]))));
        if (finding.acceptedBecause)
            content += element("p", ofClass("reason"),
                               Words::tr("Accepted: %1").arg(escaped(*finding.acceptedBecause)));
        if (finding.outgrown)
            content += element("p", ofClass("reason"), asSentence(outgrownText(finding)));
        if (finding.further > 0)
            content +=
                element("p", ofClass("reason"), asSentence(furtherText(finding.further).toStdString()));
        return element("li", itemAttributes(merged, finding, handles),
                       content + suggested(merged) + places(finding, handles));
    }

    QString suggested(const MergedFinding& merged) const {
        const Suggestion* suggestion = suggestionFor(m_report, merged.numbers.front() - 1);
        QString text;
        if (suggestion)
            for (const std::string& line : suggestionLines(*suggestion))
                text += element("p", ofClass("suggestion"), asSentence(line));
        return text;
    }

    QString itemAttributes(const MergedFinding& merged, const Finding& finding,
                           const std::vector<long long>& handles) const {
        QStringList all;
        for (const long long handle : handles)
            all << QString::number(handle);
        const QString number = QString::number(merged.numbers.front());
        QString attributes =
            ofClass(finding.acceptedBecause ? "finding accepted" : "finding") + " id=\"" +
            m_ids.finding(merged.numbers.front()) + "\" data-number=\"" + number + "\" data-rules=\"" +
            asTexts(merged.rules).join(' ') + "\" data-records=\"" + QString::number(merged.records) +
            "\" data-accepted=\"" + QString::number(merged.accepted) + "\" data-handle=\"" +
            QString::number(m_report.record(finding).handle) + "\" data-elements=\"" + all.join(' ') + "\"";
        if (finding.measureCount > 1 && finding.relatedCount >= firestandard::kMostTold)
            attributes += " data-focus=\"" + all.mid(0, 2).join(' ') + "\""; // not the whole long group
        if (const auto share = missingShare(finding))
            attributes += " data-missing=\"" + QString::number(*share, 'f', 4) + "\"";
        return attributes;
    }

    /// So that a link to any of the records finds them here.
    QString anchors(const MergedFinding& merged) const {
        QString text;
        for (std::size_t i = 1; i < merged.numbers.size(); ++i)
            text += "<span id=\"" + m_ids.finding(merged.numbers[i]) + "\"></span>";
        return text;
    }

    QString places(const Finding& finding, const std::vector<long long>& handles) const {
        QString items;
        if (missingShare(finding))
            items += element("li", {}, missingShareText(finding));
        for (const long long handle : handles)
            items += element("li", {}, placeText(handle, finding.sentence));
        const std::size_t others = finding.relatedCount - finding.related.size();
        if (others > 0)
            items += element("li", {},
                             others == 1 ? Words::tr("and 1 other")
                                         : Words::tr("and %n others", "", static_cast<int>(others)));
        return items.isEmpty() ? items : element("ul", ofClass("places"), "\n" + items);
    }

    /// With its name where the sentence does not have it.
    QString placeText(long long handle, const std::string& sentence) const {
        const ElementLabel* label = m_report.element(handle);
        QString text = "#" + QString::number(handle);
        if (!label)
            return text;
        if (!label->name.empty() && sentence.find(label->name) == std::string::npos)
            text += " · " + escaped(label->name);
        if (!label->className.empty())
            text += " · " + escaped(label->className);
        if (label->place)
            text += " · " + Words::tr("at (%1, %2) m")
                                .arg(coordinateText(label->place->x), coordinateText(label->place->y));
        return text;
    }

    const SiteReport& m_report;
    const std::vector<MergedFinding>& m_merged;
    const PlanIds& m_ids;
};

} // namespace

QString findingList(const SiteReport& report, const std::vector<MergedFinding>& merged, const PlanIds& ids) {
    return FindingList(report, merged, ids).html();
}

} // namespace firecheck
