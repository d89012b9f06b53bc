#pragma once

#include "geometry/CBox2d.h"
#include "geometry/Edge2d.h"

#include <string>
#include <vector>

namespace firecheck {

/// What an element is drawn as, in the order of drawing: later ones lie above earlier ones.
enum class PlanKind {
    Road,
    FireRoad,
    Yard,
    House,
    Shed,
    Station,
    Other,
    Crane,
    Door,
    Wall,
    Cable,
    Poster,
    Model
};

struct PlanPath {
    std::vector<hrx::Edge2d> edges; ///< mm, head to tail
    bool isClosed = true;
};

/// An element in plan.
struct PlanShape {
    long long handle = 0;
    PlanKind kind = PlanKind::Other;
    std::vector<PlanPath> paths;
    hrx::CBox2d box;   ///< mm
    std::string title; ///< what it is, its handle and its name
    std::string label; ///< short enough to stand in a plan
};

} // namespace firecheck
