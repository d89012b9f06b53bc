#pragma once

#include "report/SiteReport.h"

#include <QString>

namespace firecheck {

/// One site's part of the page: its plan beside the list of its violations, and tables of what was judged.
/// `number` tells the sites of a page apart.
QString siteSection(const SiteReport& report, std::size_t number);

/// The id of that part.
QString siteId(std::size_t number);

/// The site's name, or its file's where it has none; as markup.
QString siteTitle(const SiteReport& report);

} // namespace firecheck
