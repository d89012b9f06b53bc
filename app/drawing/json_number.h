#pragma once

#include "json/Json.h"

#include <cmath>

namespace firecheck {

/// Whole numbers are written as such.
inline Json jsonNumber(double value) {
    if (value == std::floor(value) && std::abs(value) < 1e15)
        return static_cast<long long>(value);
    return value;
}

} // namespace firecheck
