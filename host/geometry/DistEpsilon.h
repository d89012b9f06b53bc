#pragma once

namespace hrx {

/// Lengths (mm) up to this count as none.
extern const double g_DistEpsilon;

} // namespace hrx
