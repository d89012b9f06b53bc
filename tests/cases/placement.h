#pragma once

#include "site_file/Json.h"

/// Whether a site is turned about the origin, by the angle whose cosine is 0.6 and whose sine is 0.8: points
/// with coordinates divisible by 5 keep whole numbers.
enum class Turn { None, ThreeFourFive };

/// The site with every object turned, then moved some kilometres away. Throws InputError for an object with
/// extents of its own, which cannot be turned.
Json placed(const Json& site, Turn turn);
