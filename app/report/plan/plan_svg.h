#pragma once

#include "report/SiteReport.h"
#include "report/merged_findings.h"
#include "report/plan/plan_pins.h"

#include <QString>

namespace firecheck {

/// How ids and links of one site's plan and list start, so that several sites share a page: "s1-".
struct PlanIds {
    QString prefix;

    QString element(long long handle) const { return prefix + "e" + QString::number(handle); }
    QString finding(std::size_t number) const { return prefix + "f" + QString::number(number); }
};

/// The classes that give a rule its colour, "c0" to "c9", and from the eleventh rule on its pattern, "k1" to
/// "k7", from its place in the counts on.
QString colourClasses(std::size_t ruleIndex);

/// Magnification at which a plan is drawn where no script changes it: on paper, and in a file of its own.
constexpr int kLevelWithoutScripts = 1;

struct DrawnPlan {
    QString svg; ///< empty for a site without anything to draw
    std::vector<PlanPin> pins;
};

/// The plan as an svg element: every element to scale by its outline, what offends in the colour of its rule
/// and numbered like the findings, distances drawn between the closest points. Its looks come from plan.css.
DrawnPlan drawPlan(const SiteReport& report, const std::vector<MergedFinding>& merged, const PlanIds& ids);

/// The plan as a file of its own.
QString planSvgFile(const SiteReport& report);

} // namespace firecheck
