#include "command_line/AcceptOptions.h"

#include "command_line/Output.h"

namespace firecheck {

namespace {

std::vector<Acceptance> given(const Options& options) {
    const auto source = options.value("accept");
    return source ? loadAcceptances(source->toStdString(), options.arguments().size() > 1)
                  : std::vector<Acceptance>();
}

} // namespace

AcceptOptions::AcceptOptions(const Options& options)
    : m_acceptances(given(options)), m_new(m_acceptances, options.arguments().size() > 1),
      m_target(options.value("write-accept")) {}

void AcceptOptions::applyTo(SiteReport& report) {
    acceptFindings(m_acceptances, report);
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
