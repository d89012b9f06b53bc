#include "explain/sentence.h"
#include "report/ReportWriter.h"
#include "report/clause_table.h"
#include "report/counts.h"
#include "report/judgement_text.h"
#include "report/missing_share.h"
#include "report/unjudged_text.h"
#include "suggest/suggestion_text.h"
#include "text/printable.h"
#include "text/words.h"

#include <map>
#include <optional>

namespace firecheck {

namespace {

std::string shown(const QString& text) {
    return printable(text.toStdString());
}

std::string coordinate(double metres) {
    return QString::number(metres, 'f', 2).toStdString();
}

/// Handle, class, identifier and place, as far as they are known.
std::string placeText(const SiteReport& report, long long handle) {
    std::string text = "#" + std::to_string(handle);
    const ElementLabel* element = report.element(handle);
    if (!element)
        return text;
    for (const std::string& part : {element->className, element->identifier})
        text += part.empty() ? "" : " " + printable(part);
    if (element->place)
        text += " " + filled(Words::tr("at (%1, %2) m"), coordinate(element->place->x),
                             coordinate(element->place->y));
    return text;
}

std::string othersText(const Finding& finding) {
    const auto count = static_cast<int>(finding.relatedCount - finding.related.size());
    return filled(count == 1 ? Words::tr("1 other") : Words::tr("%n others", "", count));
}

/// What the head tells beside the violations: ", 2 accepted, 1 element not judged".
std::string otherCounts(const SiteReport& report) {
    const QString comma = Words::tr(", ");
    QString text;
    if (report.acceptedCount() > 0)
        text += comma + acceptedText(report.acceptedCount());
    if (report.unjudgedCount() > 0)
        text += comma + unjudgedElementsText(report.unjudgedCount());
    if (report.leftOutRules > 0)
        text += comma + leftOutRulesText(report.leftOutRules);
    return text.toStdString();
}

class TextReportWriter : public ReportWriter {
public:
    TextReportWriter(Sink sink, bool coloured) : ReportWriter(std::move(sink)), m_coloured(coloured) {}

    void add(const SiteReport& report) override {
        write(m_isFirst ? "" : "\n");
        m_isFirst = false;
        writeHead(report);
        writeFindings(report);
        writeStale(report);
        writeNotJudged(report);
        writeClauses(report);
        writeJudged(report);
    }

private:
    std::string emphasised(const std::string& text, const char* code) const {
        return m_coloured ? "\033[" + std::string(code) + "m" + text + "\033[0m" : text;
    }

    void writeHead(const SiteReport& report) const {
        const std::string title =
            printable(report.fileName) + (report.siteName.empty() ? "" : ": " + printable(report.siteName));
        write(emphasised(title, "1") + "\n" + filled(objectsText(report.objectCount)) +
              filled(Words::tr(", ")));
        write((report.counts.empty()
                   ? emphasised(filled(Words::tr("no violations")), "32")
                   : filled(Words::tr("%1 of %2", "violations, rules"),
                            emphasised(filled(violationsText(report.violationCount())), "31"),
                            rulesText(report.counts.size()))) +
              otherCounts(report) + "\n");
        for (const RuleCount& count : report.counts) {
            const std::string number = std::to_string(count.violations);
            const std::string padding(number.size() < 5 ? 5 - number.size() : 0, ' ');
            write(padding + number + "  " + shown(count.ruleName) + "\n");
        }
    }

    void writeFindings(const SiteReport& report) const {
        std::map<QString, std::size_t> sizes;
        for (const Finding& finding : report.findings)
            sizes[groupOf(report, finding)] += finding.recordCount();
        std::optional<QString> group;
        for (const Finding& finding : report.findings) {
            const NuxStandardCheckRule& record = report.record(finding);
            if (const QString own = groupOf(report, finding); own != group) {
                group = own;
                writeGroupHead(report.order, record, sizes[own]);
            }
            writeFinding(report, finding, record);
        }
    }

    static QString groupOf(const SiteReport& report, const Finding& finding) {
        switch (report.order) {
        case FindingOrder::Rule:
            return report.record(finding).name;
        case FindingOrder::Clause:
            return report.record(finding).standard;
        case FindingOrder::Missing:
            break;
        }
        return {};
    }

    void writeGroupHead(FindingOrder order, const NuxStandardCheckRule& rule, std::size_t violations) const {
        write("\n");
        const std::string count = " (" + std::to_string(violations) + ")";
        if (order == FindingOrder::Rule)
            write(emphasised(shown(rule.name), "1") + count + ruleTexts(rule) + "\n");
        else if (order == FindingOrder::Clause)
            write(emphasised(shown(clauseName(rule.standard)), "1") + count + "\n");
    }

    static std::string ruleTexts(const NuxStandardCheckRule& rule) {
        const std::string description =
            rule.ruleDescription.isEmpty() ? "" : ": " + shown(rule.ruleDescription);
        const std::string standard = rule.standard.isEmpty() ? "" : " [" + shown(rule.standard) + "]";
        return description + standard;
    }

    void writeFinding(const SiteReport& report, const Finding& finding,
                      const NuxStandardCheckRule& record) const {
        write("  " + printable(finding.sentence) + "\n");
        if (report.order == FindingOrder::Missing && missingShare(finding))
            write("    " + filled(missingShareText(finding)) + "\n");
        if (report.order != FindingOrder::Rule)
            write("    " + shown(record.name) + ruleTexts(record) + "\n");
        if (finding.acceptedBecause)
            write("    " + printable(filled(Words::tr("accepted: %1", "reason"), *finding.acceptedBecause)) +
                  "\n");
        if (finding.outgrown)
            write("    " + printable(outgrownText(finding)) + "\n");

        std::vector<long long> handles = finding.related;
        if (record.handle != 0)
            handles.insert(handles.begin(), record.handle);
        std::string places;
        for (std::size_t i = 0; i < handles.size(); ++i)
            places += (i == 0 ? "" : ", ") + placeText(report, handles[i]);
        if (finding.related.size() < finding.relatedCount)
            places = filled(Words::tr("%1 and %2", "end of a list"), places, othersText(finding));
        if (!places.empty())
            write("    " + places + "\n");
        if (finding.further > 0)
            write("  " + filled(furtherText(finding.further)) + "\n");
        writeSuggestion(report, finding);
    }

    void writeSuggestion(const SiteReport& report, const Finding& finding) const {
        const auto number = static_cast<std::size_t>(&finding - report.findings.data());
        if (!report.suggestions)
            return;
        for (const Suggestion& suggestion : *report.suggestions)
            if (suggestion.finding == number)
                for (const std::string& line : suggestionLines(suggestion))
                    write("    " + printable(line) + "\n");
    }

    void writeStale(const SiteReport& report) const {
        if (!report.staleAcceptances.empty())
            write("\n" + filled(Words::tr("Accepted before, but no longer there")) + "\n");
        for (const std::string& entry : report.staleAcceptances)
            write("  " + printable(entry) + "\n");
    }

    void writeNotJudged(const SiteReport& report) const {
        if (!report.unjudged.empty() || !report.notJudged.empty())
            write("\n" + emphasised(filled(Words::tr("Not judged")), "33") + "\n");
        for (const firestandard::UnjudgedElement& element : report.unjudged)
            write("  " + printable(unjudgedText(report, element)) + "\n    " +
                  printable(unjudgedByText(element)) + "\n");
        for (const PassedOver& passedOver : report.notJudged)
            write("  " + printable(passedOver.what) + ": " + printable(passedOver.reason) + "\n");
        if (!report.judgedByNoRule.empty())
            write("\n" + filled(Words::tr("Judged by no rule")) + "\n");
        for (const ElementLabel& element : report.judgedByNoRule)
            write("  " + printable(firestandard::labelPhrase(element)) + "\n");
    }

    void writeClauses(const SiteReport& report) const {
        write("\n" + filled(Words::tr("By clause")) + "\n");
        for (const ClauseOutcome& clause : clauseTable(report))
            write("  " + shown(clauseName(clause.standard)) + ": " + shown(clauseOutcomeText(clause)) + "\n");
    }

    void writeJudged(const SiteReport& report) const {
        write("\n" + filled(Words::tr("What was judged")) + "\n");
        for (const JudgedRule& judged : report.judged)
            write("  " + shown(judged.rule.name) + ": " + printable(judgementText(judged)) + "\n");
    }

    bool m_coloured;
    bool m_isFirst = true;
};

} // namespace

std::unique_ptr<ReportWriter> textReportWriter(ReportWriter::Sink sink, bool coloured) {
    return std::make_unique<TextReportWriter>(std::move(sink), coloured);
}

} // namespace firecheck
