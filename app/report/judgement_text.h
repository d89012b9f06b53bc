#pragma once

#include "report/SiteReport.h"

namespace firecheck {

/// What became of a rule, in a few words: "14 found, 1 offends", "nothing to judge", "missing".
std::string judgementText(const JudgedRule& judged);

} // namespace firecheck
