#pragma once

#include "json/Json.h"

#include <string>

namespace firecheck {

/// The text of a site file with the changes that lead from the site `before`, which was parsed from it, to
/// `after`: keys with other values, further keys, and new objects that stand together before the last one of
/// the list. All else keeps its bytes.
std::string changedSiteText(const std::string& text, const Json& before, const Json& after);

} // namespace firecheck
