#include "report/plan/plan_ghosts.h"

#include "report/plan/plan_path.h"

#include <algorithm>
#include <cmath>

namespace firecheck {

namespace {

constexpr double kLongestHead = 1.2; ///< metres
constexpr double kHeadShare = 0.4;   ///< of the arrow

QString path(const QString& classes, const QString& data) {
    return "<path class=\"" + classes + "\" d=\"" + data + "\"/>\n";
}

QString arrow(const DrawnPoint& from, const DrawnPoint& to) {
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const double length = std::hypot(dx, dy);
    if (!(length > 0.0))
        return {};
    const double head = std::min(kLongestHead, kHeadShare * length) / length;
    const auto barb = [&](double side) {
        return drawnPair({to.x - head * (dx + 0.5 * side * dy), to.y - head * (dy - 0.5 * side * dx)});
    };
    return "M" + drawnPair(from) + "L" + drawnPair(to) + "M" + barb(1.0) + "L" + drawnPair(to) + "L" +
           barb(-1.0);
}

} // namespace

const Suggestion* suggestionFor(const SiteReport& report, std::size_t finding) {
    if (!report.suggestions)
        return nullptr;
    const auto found =
        std::find_if(report.suggestions->begin(), report.suggestions->end(),
                     [finding](const Suggestion& suggestion) { return suggestion.finding == finding; });
    return found == report.suggestions->end() ? nullptr : &*found;
}

QString planGhosts(const Suggestion& suggestion, const PlanFrame& frame) {
    QString text;
    for (const SuggestedStep& step : suggestion.steps)
        for (const SuggestedObject& object : step.objects) {
            PlanShape shape;
            shape.paths = object.outline;
            if (!shape.paths.empty())
                text += path("outline", pathData(shape, frame));
            if (!step.move || !object.from || !object.to)
                continue;
            const QString data = arrow(frame.drawn(*object.from), frame.drawn(*object.to));
            if (!data.isEmpty())
                text += path("arrow", data);
        }
    return text;
}

} // namespace firecheck
