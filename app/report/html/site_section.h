#pragma once

#include "report/ReportWriter.h"

namespace firecheck {

/// Writes one site's part of the page: its plan beside the list of its violations, and tables of what was
/// judged. `number` tells the sites of a page apart. In pieces, because a finding may name every element of a
/// large site.
void writeSiteSection(const SiteReport& report, std::size_t number, const ReportWriter::Sink& sink);

} // namespace firecheck
