#pragma once

#include "report/plan/PlanFrame.h"
#include "report/plan/plan_room.h"

#include <QString>

#include <vector>

namespace firecheck {

/// A text of the plan and where it may stand.
struct PlanLabel {
    QString text;
    QString attributes;
    DrawnPoint middle; ///< of what it names
    double halfWidth = 0.0;
    double halfHeight = 0.0;
    int firstLevel = 0;          ///< before this magnification it is not shown
    int firstLevelBeside = 0;    ///< before this one it stands on its element or nowhere
    bool mustFitElement = false; ///< on its element it must not reach beyond it

    // Where it stands, once placed.
    enum class Place { Centre, Under, Over, Below, Above, Right, Left };
    Place place = Place::Centre;
    int level = -1; ///< the first magnification at which it is free of others; -1 when at none
};

/// Places the labels in their order, each as early as it finds room in the plan beside those placed before
/// and beside the obstacles, whose rooms are given for each level.
void placeLabels(std::vector<PlanLabel>& labels, const std::vector<std::vector<PlanRoom>>& obstacles,
                 double planWidth, double planHeight);

/// The point that a placed label hangs on: of its element the middle or, beside it, the middle of a side.
DrawnPoint labelAnchor(const PlanLabel& label);

/// How far below its anchor the middle of the text stands, in label heights.
double labelDrop(PlanLabel::Place place);

} // namespace firecheck
