#pragma once

#include "geometry/CCoord3.h"

/// The frame in which solids stand on the ground; one for all, because every measure builds solids in it.
inline const hrx::CCoord3<double> kWorldFrame{};
