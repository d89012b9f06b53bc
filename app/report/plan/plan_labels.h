#pragma once

#include "report/plan/PlanFrame.h"

#include <QString>

#include <vector>

namespace firecheck {

/// A text of the plan and where it may stand.
struct PlanLabel {
    QString text;
    QString classes;
    DrawnPoint middle; ///< of what it names
    double halfWidth = 0.0;
    double halfHeight = 0.0;
    int firstLevel = 0;          ///< before this magnification it is not shown
    int firstLevelBeside = 0;    ///< before this one it stands on its element or nowhere
    bool mustFitElement = false; ///< on its element it must not reach beyond it

    // Where it stands, once placed.
    enum class Place { Centre, Above, Below, Right, Left };
    Place place = Place::Centre;
    int level = -1; ///< the first magnification at which it is free of others; -1 when at none
};

/// Magnifications at which labels are shown. At level n the plan is kNarrowestPlan * 2^n pixels wide or
/// wider, and labels are kLabelPixels high whatever the level.
constexpr int kLabelLevels = 7;
constexpr double kNarrowestPlan = 340.0;
constexpr double kLabelPixels = 11.0;

/// Height of a label in the plan's own metres.
double labelHeight(double planWidth, int level);

/// Places the labels in their order, each as early as it finds room in the plan beside those placed before.
void placeLabels(std::vector<PlanLabel>& labels, double planWidth, double planHeight);

/// The point that a placed label hangs on, its middle or the middle of the side that faces the element.
DrawnPoint labelAnchor(const PlanLabel& label);

} // namespace firecheck
