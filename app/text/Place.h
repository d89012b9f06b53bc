#pragma once

namespace firecheck {

/// Where something stands in a text file; both count from 1, columns in characters.
struct Place {
    int line = 1;
    int column = 1;
};

} // namespace firecheck
