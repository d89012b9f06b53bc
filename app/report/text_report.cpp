#include "explain/measure_text.h"
#include "explain/sentence.h"
#include "report/ReportWriter.h"
#include "report/judgement_text.h"
#include "text/printable.h"

#include <algorithm>

namespace firecheck {

namespace {

constexpr std::size_t kMostPlaced = 4; ///< elements whose place is told, the offending one included

std::string shown(const QString& text) {
    return printable(text.toStdString());
}

std::string counted(std::size_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
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
        text += " at (" + coordinate(element->place->x) + ", " + coordinate(element->place->y) + ") m";
    return text;
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
        writeJudged(report);
        if (!report.notJudged.empty())
            write("\nNot judged\n");
        for (const PassedOver& passedOver : report.notJudged)
            write("  " + printable(passedOver.what) + ": " + printable(passedOver.reason) + "\n");
    }

private:
    std::string emphasised(const std::string& text, const char* code) const {
        return m_coloured ? "\033[" + std::string(code) + "m" + text + "\033[0m" : text;
    }

    void writeHead(const SiteReport& report) const {
        const std::string title =
            printable(report.fileName) + (report.siteName.empty() ? "" : ": " + printable(report.siteName));
        write(emphasised(title, "1") + "\n" + counted(report.objectCount, "object") + ", ");
        if (report.counts.empty()) {
            write(emphasised("no violations", "32") + "\n");
            return;
        }
        const std::size_t accepted = report.acceptedCount();
        write(emphasised(counted(report.violationCount(), "violation"), "31") + " of " +
              counted(report.counts.size(), "rule") +
              (accepted > 0 ? ", " + std::to_string(accepted) + " accepted" : "") + "\n");
        for (const RuleCount& count : report.counts) {
            const std::string number = std::to_string(count.violations);
            const std::string padding(number.size() < 5 ? 5 - number.size() : 0, ' ');
            write(padding + number + "  " + shown(count.ruleName) + "\n");
        }
    }

    void writeFindings(const SiteReport& report) const {
        auto count = report.counts.begin();
        const NuxStandardCheckRule* previous = nullptr;
        for (const Finding& finding : report.findings) {
            const NuxStandardCheckRule& record = report.record(finding);
            if (!previous || previous->name != record.name)
                writeRuleHead(record, (count++)->violations);
            previous = &record;
            writeFinding(report, finding, record);
        }
    }

    void writeRuleHead(const NuxStandardCheckRule& rule, std::size_t violations) const {
        const std::string description =
            rule.ruleDescription.isEmpty() ? "" : ": " + shown(rule.ruleDescription);
        const std::string standard = rule.standard.isEmpty() ? "" : " [" + shown(rule.standard) + "]";
        write("\n" + emphasised(shown(rule.name), "1") + " (" + std::to_string(violations) + ")" +
              description + standard + "\n");
    }

    void writeFinding(const SiteReport& report, const Finding& finding,
                      const NuxStandardCheckRule& record) const {
        write("  " + printable(finding.sentence) + "\n");
        if (finding.acceptedBecause)
            write("    accepted: " + printable(*finding.acceptedBecause) + "\n");

        std::vector<long long> handles = relatedFromNearest(finding, record);
        if (record.handle != 0)
            handles.insert(handles.begin(), record.handle);
        const std::size_t placed = std::min(handles.size(), kMostPlaced);
        std::string places;
        for (std::size_t i = 0; i < placed; ++i)
            places += (i == 0 ? "" : ", ") + placeText(report, handles[i]);
        if (placed < handles.size())
            places += " and " + std::to_string(handles.size() - placed) + " others";
        if (!places.empty())
            write("    " + places + "\n");
    }

    void writeStale(const SiteReport& report) const {
        if (!report.staleAcceptances.empty())
            write("\nAccepted before, but no longer there\n");
        for (const std::string& entry : report.staleAcceptances)
            write("  " + printable(entry) + "\n");
    }

    void writeJudged(const SiteReport& report) const {
        write("\nWhat was judged\n");
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
