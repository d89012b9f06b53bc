#include "command_line/AcceptOptions.h"

#include "command_line/Output.h"

namespace firecheck {

namespace {

std::vector<std::string> sitesOf(const Options& options) {
    std::vector<std::string> sites;
    for (const QString& site : options.arguments())
        sites.push_back(site.toStdString());
    return sites;
}

std::vector<Acceptance> given(const Options& options, const std::vector<std::string>& sites) {
    const auto source = options.value("accept");
    return source ? loadAcceptances(source->toStdString(), sites) : std::vector<Acceptance>();
}

} // namespace

AcceptOptions::AcceptOptions(const Options& options)
    : m_sites(sitesOf(options)), m_acceptances(given(options, m_sites)),
      m_ofOtherSites(ofOtherSites(m_acceptances, m_sites)), m_new(m_acceptances, m_sites),
      m_target(options.value("write-accept")) {}

void AcceptOptions::applyTo(SiteReport& report) {
    acceptFindings(m_acceptances, m_sites, report);
    for (std::string& entry : m_ofOtherSites)
        report.staleAcceptances.push_back(std::move(entry));
    m_ofOtherSites.clear();
}

void AcceptOptions::keep(const SiteReport& report) {
    if (m_target)
        m_new.add(report);
}

void AcceptOptions::write() const {
    if (!m_target)
        return;
    Output output(*m_target);
    output.write(m_new.text());
    output.commit();
}

} // namespace firecheck
