#pragma once

#include "geometry/CPolygon.h"

#include <utility>
#include <vector>

namespace hrx::plan {

/// A part of a region between two levels of y, bounded by two edges that rise from the one to the other.
/// Their ends may coincide; all of it may be a line without width.
struct OutlineCell {
    Edge2d left;
    Edge2d right;
};

/// Cells that make up the region, moved by -offset: holes left out, arcs kept as arcs. Edges along x that
/// bound no cell are cells of their own, so an outline without area has cells too.
std::vector<OutlineCell> cellsOf(const CPolygon& region, const CVec2<double>& offset);

/// The point of a rising edge at a level between its ends.
CVec2<double> crossingAt(const Edge2d& rising, double level);
/// A rising edge below and above a level between its ends.
std::pair<Edge2d, Edge2d> cutAt(const Edge2d& rising, double level);

} // namespace hrx::plan
