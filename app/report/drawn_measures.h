#pragma once

#include "explain/Finding.h"
#include "rules_config/NuxStandardCheckRule.h"

#include <vector>

namespace firecheck {

/// The measures of a finding that are drawn in plans, all with points. Of a box that is too far only the
/// nearest counts, since others are farther still; of other distances each one does. They are those of the
/// finding, which must outlive them.
std::vector<const firestandard::Measure*> drawnMeasures(const NuxStandardCheckRule& record,
                                                        const firestandard::Finding& finding);

} // namespace firecheck
