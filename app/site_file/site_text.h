#pragma once

#include "json/Json.h"

#include <string>

namespace firecheck {

/// A site as a file: a line for each object, as people write site files.
std::string siteText(const Json& site);

} // namespace firecheck
