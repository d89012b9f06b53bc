#include "report/ReportWriter.h"
#include "report/counts.h"
#include "report/missing_share.h"
#include "report/unjudged_text.h"
#include "text/printable.h"
#include "text/words.h"

#include <QString>
#include <QStringList>

namespace firecheck {

namespace {

const char* const kByteOrderMark = "\xEF\xBB\xBF"; // tells spreadsheets that the text is UTF-8
const char* const kLineEnd = "\r\n";

QString quoted(QString text) {
    return '"' + text.replace('"', "\"\"") + '"';
}

/// A text that came from a file: a spreadsheet must not take it for a formula, whatever blanks stand before
/// its first character and however wide that is.
QString cell(const std::string& utf8) {
    const QString text = QString::fromStdString(printable(utf8));
    const QString start = text.trimmed().left(1);
    const bool looksLikeFormula = !start.isEmpty() && QStringLiteral("=+-@＝＋－＠").contains(start);
    return quoted(looksLikeFormula ? "'" + text : text);
}

QString cell(const QString& text) {
    return cell(text.toStdString());
}

QString cell(long long number) {
    return QString::number(number);
}

/// Six decimals tell a micrometre; the zeros at the end say nothing.
QString cell(std::optional<double> number) {
    if (!number)
        return {};
    QString text = QString::number(*number, 'f', 6);
    while (text.endsWith('0'))
        text.chop(1);
    if (text.endsWith('.'))
        text.chop(1);
    return text == "-0" ? "0" : text;
}

/// Handle, class, identifier, name and place: empty where there is no element or nothing is known of it.
QStringList elementCells(const SiteReport& report, long long handle) {
    const ElementLabel* element = report.element(handle);
    if (!element)
        return {handle == 0 ? QString() : cell(handle), {}, {}, {}, {}, {}};
    const auto& place = element->place;
    return {cell(handle),
            cell(element->className),
            cell(element->identifier),
            cell(element->name),
            place ? cell(std::optional(place->x)) : QString(),
            place ? cell(std::optional(place->y)) : QString()};
}

const Measure* measureOf(const Finding& finding, long long related) {
    for (const Measure& measure : finding.measures)
        if (measure.other == related)
            return &measure;
    return nullptr;
}

QStringList measureCells(const Measure* measure) {
    if (!measure)
        return {{}, {}, {}, {}};
    return {cell(std::optional(measure->value)), measure->kind == Measure::Kind::Area ? "m2" : "m",
            cell(measure->minimum), cell(measure->maximum)};
}

const char* const kHead = "file,site,violation,rule,description,standard,sentence,accepted because,"
                          "handle,class,identifier,name,x (m),y (m),"
                          "related handle,related class,related identifier,related name,related x (m),"
                          "related y (m),value,unit,at least,at most,further related,missing or too much (%)";
constexpr int kColumns = 26;
constexpr int kSentence = 6; ///< the column; further lines of a violation do not repeat it

class CsvReportWriter : public ReportWriter {
public:
    using ReportWriter::ReportWriter;

    void begin() override { write(std::string(kByteOrderMark) + kHead + kLineEnd); }

    void add(const SiteReport& report) override {
        long long number = 0;
        for (const Finding& finding : report.findings)
            writeFinding(report, finding, ++number);
        for (const firestandard::UnjudgedElement& element : report.unjudged)
            writeUnjudged(report, element);
    }

private:
    void writeFinding(const SiteReport& report, const Finding& finding, long long number) const {
        const NuxStandardCheckRule& record = report.record(finding);
        QStringList head = QStringList{cell(report.fileName),
                                       cell(report.siteName),
                                       cell(number),
                                       cell(record.name),
                                       cell(record.ruleDescription),
                                       cell(record.standard),
                                       cell(finding.sentence),
                                       cell(finding.acceptedBecause.value_or(""))} +
                           elementCells(report, record.handle);
        std::vector<long long> related = finding.related;
        if (related.empty())
            related.push_back(0);
        const auto share = missingShare(finding);
        const QString percent = share ? cell(std::optional(*share * 100.0)) : QString();
        const std::size_t others = finding.relatedCount - finding.related.size();
        for (const long long handle : related) {
            writeLine(head + elementCells(report, handle) + measureCells(measureOf(finding, handle)) +
                      QStringList{handle == related.back() && others > 0
                                      ? cell(static_cast<long long>(others))
                                      : QString(),
                                  percent});
            head[kSentence].clear();
        }
        if (finding.further > 0)
            writeUnnumbered(report, record.name, filled(furtherText(finding.further)), record.handle);
    }

    /// Without a number: it is no violation, but the element's silence says nothing.
    void writeUnjudged(const SiteReport& report, const firestandard::UnjudgedElement& element) const {
        QStringList rules;
        for (const QString& rule : element.rules)
            rules << rule;
        writeUnnumbered(report, rules.join("; "),
                        filled(Words::tr("not judged: %1"), unjudgedText(report, element)), element.handle);
    }

    void writeUnnumbered(const SiteReport& report, const QString& rules, const std::string& sentence,
                         long long handle) const {
        QStringList line{
            cell(report.fileName), cell(report.siteName), {}, cell(rules), {}, {}, cell(sentence), {}};
        line += elementCells(report, handle);
        while (line.size() < kColumns)
            line << QString();
        writeLine(line);
    }

    void writeLine(const QStringList& cells) const { write((cells.join(',') + kLineEnd).toStdString()); }
};

} // namespace

std::unique_ptr<ReportWriter> csvReportWriter(ReportWriter::Sink sink) {
    return std::make_unique<CsvReportWriter>(std::move(sink));
}

} // namespace firecheck
