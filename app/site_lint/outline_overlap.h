#pragma once

#include "report/plan/PlanShape.h"

#include <vector>

namespace firecheck {

/// An outline in plan, mm, arcs as chords. A line is one too: of its two ends.
struct PlanOutline {
    std::vector<hrx::CVec2<double>> corners;
    hrx::CBox2d box;
};

PlanOutline planOutlineOf(const PlanPath& path);

/// Whether two outlines have ground in common, or one crosses or holds the other, by more than `tolerance`
/// mm. Two lines along each other have none.
bool standInEachOther(const PlanOutline& a, const PlanOutline& b, double tolerance);

} // namespace firecheck
