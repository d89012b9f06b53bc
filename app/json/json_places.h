#pragma once

#include "text/Place.h"

#include <string>
#include <vector>

namespace firecheck {

/// Where the values with these JSON pointers stand in a text that is JSON, in the order of the pointers: a
/// member by its key, anything else by its first character. A value that is not there is given the place of
/// the innermost value around it.
std::vector<Place> jsonPlaces(const std::string& text, const std::vector<std::string>& pointers);

/// Bytes of a text, the last one not included.
struct ByteRange {
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// The bytes of the values with these JSON pointers, which are there, in their order.
std::vector<ByteRange> jsonRanges(const std::string& text, const std::vector<std::string>& pointers);

/// Line and column of a byte of the text.
Place placeAt(const std::string& text, std::size_t offset);

} // namespace firecheck
