#include "command_line/AcceptOptions.h"

#include "InputError.h"
#include "command_line/Output.h"

namespace firecheck {

AcceptOptions::AcceptOptions(const Options& options) : m_target(options.value("write-accept")) {
    const auto source = options.value("accept");
    if ((source || m_target) && options.arguments().size() > 1)
        throw InputError("Accepted violations are those of one site: give one site file.");
    if (source)
        m_acceptances = loadAcceptances(source->toStdString());
}

void AcceptOptions::applyTo(SiteReport& report) const {
    acceptFindings(m_acceptances, report);
    if (!m_target)
        return;
    Output output(*m_target);
    output.write(acceptFileText(report));
    output.commit();
}

} // namespace firecheck
