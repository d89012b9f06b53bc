#include "geometry/DistEpsilon.h"

namespace hrx {

const double g_DistEpsilon = 1e-6;

} // namespace hrx
