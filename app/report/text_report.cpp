#include "report/ReportWriter.h"
#include "text/printable.h"

namespace {

std::string shown(const QString& text) {
    return printable(text.toStdString());
}

std::string counted(std::size_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

/// Class, identifier, name and handle, as far as they are known.
std::string elementText(const SiteReport& report, long long handle) {
    const ElementLabel* element = report.element(handle);
    std::string text;
    if (element) {
        for (const std::string& part : {element->className, element->identifier})
            text += part.empty() ? "" : printable(part) + " ";
        text += element->name.empty() ? "" : "\"" + printable(element->name) + "\" ";
    }
    return text + "#" + std::to_string(handle);
}

std::string recordText(const SiteReport& report, const NuxStandardCheckRule& record) {
    std::string text = record.handle == 0 ? "the site" : elementText(report, record.handle);
    for (std::size_t i = 0; i < record.relatedHandles.size(); ++i)
        text += (i == 0 ? " <-> " : ", ") + elementText(report, record.relatedHandles[i]);
    return text;
}

class TextReportWriter : public ReportWriter {
public:
    TextReportWriter(Sink sink, bool coloured) : ReportWriter(std::move(sink)), m_coloured(coloured) {}

    void add(const SiteReport& report) override {
        write(m_isFirst ? "" : "\n");
        m_isFirst = false;
        writeHead(report);
        for (const RuleCount& count : report.counts)
            writeRule(report, count);
        if (!report.notJudged.empty())
            write("\nNot judged\n");
        for (const NotJudged& passedOver : report.notJudged)
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
        write(emphasised(counted(report.violationCount(), "violation"), "31") + " of " +
              counted(report.counts.size(), "rule") + "\n");
        for (const RuleCount& count : report.counts) {
            const std::string number = std::to_string(count.violations);
            const std::string padding(number.size() < 5 ? 5 - number.size() : 0, ' ');
            write(padding + number + "  " + shown(count.ruleName) + "\n");
        }
    }

    void writeRule(const SiteReport& report, const RuleCount& count) const {
        bool isFirst = true;
        for (const auto& filed : report.results) {
            for (const NuxStandardCheckRule& record : filed.second) {
                if (record.name != count.ruleName)
                    continue;
                if (isFirst)
                    writeRuleHead(record, count.violations);
                isFirst = false;
                write("  " + recordText(report, record) + "\n");
            }
        }
    }

    void writeRuleHead(const NuxStandardCheckRule& rule, std::size_t violations) const {
        const std::string description =
            rule.ruleDescription.isEmpty() ? "" : ": " + shown(rule.ruleDescription);
        const std::string standard = rule.standard.isEmpty() ? "" : " [" + shown(rule.standard) + "]";
        write("\n" + emphasised(shown(rule.name), "1") + " (" + std::to_string(violations) + ")" +
              description + standard + "\n");
    }

    bool m_coloured;
    bool m_isFirst = true;
};

} // namespace

std::unique_ptr<ReportWriter> textReportWriter(ReportWriter::Sink sink, bool coloured) {
    return std::make_unique<TextReportWriter>(std::move(sink), coloured);
}
