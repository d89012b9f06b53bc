#pragma once

#include "json/Json.h"

#include <string>

namespace firecheck {

/// The text of a site file with the changes that lead from the site `before`, which was parsed from it, to
/// `after`: objects, known by their handles, that are new, gone, or have other values, further keys or fewer
/// of them. All else keeps its bytes.
std::string changedSiteText(const std::string& text, const Json& before, const Json& after);

/// The text of a site that no text was read of: each object on a line of its own.
std::string siteText(const Json& site);

} // namespace firecheck
