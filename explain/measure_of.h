#pragma once

#include "evaluators/CheckObserver.h"
#include "explain/Finding.h"

#include <optional>

namespace firestandard {

/// What a comparison with a measurement measured, in the units of reports; nothing for quantities that
/// reports tell in words alone.
std::optional<Measure> measureOf(const Comparison& comparison);

} // namespace firestandard
