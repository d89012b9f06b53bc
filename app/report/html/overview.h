#pragma once

#include "report/SiteReport.h"

#include <QString>

namespace firecheck {

/// A row of the overview, by which one goes to a site's part of the page.
QString overviewRow(const SiteReport& report, std::size_t number);

/// The table of all sites of a page.
QString overview(const QString& rows, std::size_t sites);

} // namespace firecheck
