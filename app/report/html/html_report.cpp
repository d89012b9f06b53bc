#include "explain/Words.h"
#include "report/ReportWriter.h"
#include "report/assets.h"
#include "report/html/markup.h"
#include "report/html/overview.h"
#include "report/html/paper.h"
#include "report/html/site_section.h"
#include "text/language.h"

#include <QCryptographicHash>

namespace firecheck {

namespace {

/// What the page's policy lets a browser run or apply: the piece with just this text.
QString sourceHash(const QString& text) {
    const QByteArray hash = QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256);
    return "'sha256-" + QString::fromLatin1(hash.toBase64()) + "'";
}

/// One module, since a file opened from a disk may import none.
QString pageScript() {
    QString script = "\n";
    for (const char* part : {"PlanLabels.js", "PlanGestures.js", "plan_scale.js", "Plan.js", "Pins.js",
                             "FindingOrder.js", "Site.js", "page.js"})
        script += "\n" + asset(part);
    return script;
}

/// The page: head, overview of several sites, one section for each. Its policy admits nothing but its own
/// style and script, so that whatever a site file says stays text. Written at the end, because policy and
/// overview come first and depend on all sites.
class HtmlReportWriter : public ReportWriter {
public:
    explicit HtmlReportWriter(Sink sink)
        : ReportWriter(std::move(sink)), m_style("\n" + asset("plan.css") + asset("report.css")) {}

    void add(const SiteReport& report) override {
        ++m_sites;
        m_sections.push_back(siteSection(report, m_sites).toStdString());
        m_overviewRows += overviewRow(report, m_sites);
        m_style +=
            paperStyle(siteId(m_sites),
                       QString::fromStdString(report.siteName.empty() ? report.fileName : report.siteName));
    }

    void end() override {
        const QString script = pageScript();
        const QString policy = "default-src 'none'; base-uri 'none'; form-action 'none'; style-src " +
                               sourceHash(m_style) + "; script-src " + sourceHash(script);
        write(("<!DOCTYPE html>\n<html lang=\"" + currentLanguage().replace('_', '-') +
               "\">\n<head>\n<meta charset=\"utf-8\">\n"
               "<meta http-equiv=\"Content-Security-Policy\" content=\"" +
               policy + "\">\n<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n" +
               element("title", {}, firestandard::Words::tr("Fire-safety check")) + "<style>" + m_style +
               "</style>\n</head>\n<body>\n" + (m_sites > 1 ? overview(m_overviewRows, m_sites) : QString()))
                  .toStdString());
        for (const std::string& section : m_sections)
            write(section);
        write(("<script type=\"module\">" + script + "</script>\n</body>\n</html>\n").toStdString());
    }

private:
    QString m_style;
    std::vector<std::string> m_sections;
    QString m_overviewRows;
    std::size_t m_sites = 0;
};

} // namespace

std::unique_ptr<ReportWriter> htmlReportWriter(ReportWriter::Sink sink) {
    return std::make_unique<HtmlReportWriter>(std::move(sink));
}

} // namespace firecheck
