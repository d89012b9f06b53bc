#pragma once

#include "report/merged_findings.h"
#include "report/plan/PlanFrame.h"
#include "report/plan/plan_room.h"

namespace firecheck {

/// The findings of one element, as indices of the merged ones, and where their pins stand.
struct PinnedElement {
    DrawnPoint spot;
    std::vector<std::size_t> findings;
};

/// What stands at one spot at some levels: a few pins side by side, or one for a cluster of findings, which
/// would else cover each other.
struct PlanPin {
    DrawnPoint spot;
    std::vector<std::size_t> findings; ///< indices of the merged ones, ascending
    bool isCluster = false;
    int firstLevel = 0;
    int lastLevel = 0;
};

/// At every level each finding stands in one pin or cluster, and none covers another.
std::vector<PlanPin> placePins(const std::vector<PinnedElement>& elements,
                               const std::vector<MergedFinding>& merged, double planWidth);

/// The rooms of those that stand at each level.
std::vector<std::vector<PlanRoom>> pinRooms(const std::vector<PlanPin>& pins,
                                            const std::vector<MergedFinding>& merged, double planWidth);

/// "7", "7–12", or "7…" where more numbers than fit are those of one finding.
QString pinText(const MergedFinding& merged);

/// "7 +12": the first number, and how many pins more the cluster stands for.
QString clusterText(const PlanPin& cluster, const std::vector<MergedFinding>& merged);

/// Measures of a pin in label heights.
constexpr double kPinHeight = 1.6;
constexpr double kPinGap = 0.2;
double pinWidth(const QString& text);

} // namespace firecheck
