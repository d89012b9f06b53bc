#pragma once

#include "report/SiteReport.h"

#include <QString>

/// One site's part of the page: its plan beside the list of its violations, and tables of what was judged.
/// `number` tells the sites of a page apart.
QString siteSection(const SiteReport& report, std::size_t number);
