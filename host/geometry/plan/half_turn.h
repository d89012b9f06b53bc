#pragma once

namespace hrx::plan {

constexpr double kHalfTurn = 3.14159265358979323846; // radians

} // namespace hrx::plan
