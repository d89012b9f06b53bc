#pragma once

#include <string>

namespace firecheck {

/// Every class of site files with its keys, in Markdown.
std::string siteReference();

} // namespace firecheck
