#pragma once

#include "report/SiteReport.h"

#include <QString>

namespace firecheck {

/// How ids and links of one site's plan and list start, so that several sites share a page: "s1-".
struct PlanIds {
    QString prefix;

    QString element(long long handle) const { return prefix + "e" + QString::number(handle); }
    QString finding(std::size_t number) const { return prefix + "f" + QString::number(number); }
};

/// The class that gives a rule its colour: "c0" to "c9", from its place in the counts on.
QString colourClass(std::size_t ruleIndex);

/// For each finding the index of its rule in the counts.
std::vector<std::size_t> ruleIndices(const SiteReport& report);

/// The plan as an svg element: every element to scale by its outline, what offends in the colour of its rule
/// and numbered like the findings, distances drawn between the closest points. Its looks come from plan.css.
/// Empty for a site without anything to draw.
QString planSvg(const SiteReport& report, const PlanIds& ids);

/// The plan as a file of its own.
QString planSvgFile(const SiteReport& report);

} // namespace firecheck
