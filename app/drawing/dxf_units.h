#pragma once

#include <string>
#include <vector>

namespace firecheck {

/// A unit that a drawing may be in.
struct DxfUnit {
    int code; ///< of $INSUNITS
    const char* name;
    double millimetres;
};

/// The usual ones first.
inline const std::vector<DxfUnit>& dxfUnits() {
    static const std::vector<DxfUnit> table = {
        {4, "mm", 1.0},      {6, "m", 1000.0},  {5, "cm", 10.0},      {1, "in", 25.4},
        {2, "ft", 304.8},    {14, "dm", 100.0}, {7, "km", 1e6},       {10, "yd", 914.4},
        {15, "dam", 1e4},    {16, "hm", 1e5},   {3, "mi", 1609344.0}, {8, "microin", 25.4e-6},
        {9, "mil", 25.4e-3}, {13, "um", 1e-3}};
    return table;
}

} // namespace firecheck
