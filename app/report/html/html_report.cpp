#include "report/ReportWriter.h"
#include "report/assets.h"
#include "report/html/site_section.h"

#include <QCryptographicHash>

namespace firecheck {

namespace {

/// What the page's policy lets a browser run or apply: the piece with just this text.
QString sourceHash(const QString& text) {
    const QByteArray hash = QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256);
    return "'sha256-" + QString::fromLatin1(hash.toBase64()) + "'";
}

/// The page as it comes: head, one section for each site, foot. Its policy admits nothing but its own style
/// and script, so that whatever a site file says stays text.
class HtmlReportWriter : public ReportWriter {
public:
    explicit HtmlReportWriter(Sink sink)
        : ReportWriter(std::move(sink)), m_style("\n" + asset("plan.css") + asset("report.css")),
          m_script("\n" + asset("report.js")) {}

    void begin() override {
        const QString policy = "default-src 'none'; base-uri 'none'; form-action 'none'; style-src " +
                               sourceHash(m_style) + "; script-src " + sourceHash(m_script);
        const QString head = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                             "<meta http-equiv=\"Content-Security-Policy\" content=\"" +
                             policy +
                             "\">\n<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
                             "<title>Fire-safety check</title>\n<style>" +
                             m_style + "</style>\n</head>\n<body>\n";
        write(head.toStdString());
    }

    void add(const SiteReport& report) override {
        writeSiteSection(report, ++m_sites, [this](const std::string& piece) { write(piece); });
    }

    void end() override { write(("<script>" + m_script + "</script>\n</body>\n</html>\n").toStdString()); }

private:
    const QString m_style;
    const QString m_script;
    std::size_t m_sites = 0;
};

} // namespace

std::unique_ptr<ReportWriter> htmlReportWriter(ReportWriter::Sink sink) {
    return std::make_unique<HtmlReportWriter>(std::move(sink));
}

} // namespace firecheck
