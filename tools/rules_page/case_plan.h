#pragma once

#include "case_file/CaseFile.h"

#include <string>

namespace firecheck {

/// The base site in plan, as an SVG file; empty when none of its objects can be drawn.
std::string basePlan(const CaseFile& file);

/// The site of a case in plan, as an SVG file, with the elements that its violations name set off.
std::string casePlan(const Case& judged);

} // namespace firecheck
