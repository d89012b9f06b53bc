#pragma once

#include "site_file/SiteClass.h"

#include <vector>

namespace firecheck {

/// Every class that a site file may name. This table is all there is to know about them: the reader, the
/// schema and the documentation are made from it.
const std::vector<SiteClass>& siteClasses();

// Its parts.
std::vector<SiteClass> buildingClasses();
std::vector<SiteClass> groundClasses();
std::vector<SiteClass> routeClasses();
std::vector<SiteClass> wallClasses();
std::vector<SiteClass> equipmentClasses();
std::vector<SiteClass> bareClasses();

} // namespace firecheck
