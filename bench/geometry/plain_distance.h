#pragma once

#include "random_outlines.h"

/// The plan distance of two outlines by the closed forms over every pair of edges, without the boxes and
/// bounds that spare most, building included.
double plainDistance(const outlines::Loop& a, const outlines::Loop& b);
