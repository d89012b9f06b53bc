#pragma once

#include "random_outlines.h"

/// The plan distance of two outlines by GEOS, arcs stroked to within 0.1 mm, building included.
double geosDistance(const outlines::Loop& a, const outlines::Loop& b);

/// The same of outlines with holes.
double geosDistance(const outlines::Outline& a, const outlines::Outline& b);
