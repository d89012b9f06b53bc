#pragma once

#include "case_file/CaseFile.h"

#include <string>

namespace firecheck {

/// The part of the page that is about one family, with `plans` where its base site is shown.
std::string familySection(const CaseFile& file, const std::string& plans);

} // namespace firecheck
