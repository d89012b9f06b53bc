#include "report/html/plan_pane.h"

#include "explain/Words.h"
#include "report/html/markup.h"
#include "report/plan/plan_kinds.h"

#include <algorithm>
#include <set>

namespace firecheck {

using firestandard::Words;

namespace {

QString toolButton(const char* name, const QString& sign, const QString& does) {
    return "<button type=\"button\" class=\"" + QString(name) + "\" aria-label=\"" + does + "\">" + sign +
           "</button>";
}

/// What a script keeps in view: the scale at every magnification, and where north is.
QString gauge() {
    return "<div class=\"gauge\" aria-hidden=\"true\"><svg class=\"plan\" viewBox=\"0 0 14 18\">"
           "<path class=\"arrow\" d=\"M7 1L12 17L7 13L2 17Z\"/></svg><span>" +
           Words::tr("N", "north, by the arrow of a plan") +
           "</span><span class=\"bar\"></span><span class=\"length\" data-text=\"" + Words::tr("%1 m") +
           "\"></span></div>";
}

QString tools() {
    return "<div class=\"tools\">" + toolButton("zoom-in", "+", Words::tr("Zoom in")) +
           toolButton("zoom-out", "−", Words::tr("Zoom out")) +
           toolButton("zoom-all", Words::tr("All"), Words::tr("Show the whole plan")) + "</div>\n";
}

QString legendItem(const QString& shape, const QString& name) {
    return element("li", {},
                   "<svg class=\"plan swatch\" viewBox=\"0 0 26 14\" aria-hidden=\"true\">" + shape +
                       "</svg>" + name);
}

QString sample(const QString& classes) {
    return "<path class=\"" + classes + "\" d=\"M2 2H24V12H2Z\"/>";
}

QString lineSample(const QString& classes) {
    return "<path class=\"" + classes + "\" d=\"M1 7H25\"/>";
}

bool isLine(PlanKind kind) {
    return kind == PlanKind::Wall || kind == PlanKind::Cable || kind == PlanKind::Poster;
}

/// The kinds that the plan holds, and what else is drawn in a way of its own.
QString legend(const SiteReport& report) {
    std::set<PlanKind> kinds;
    for (const PlanShape& shape : report.plan)
        kinds.insert(shape.kind);
    QString items;
    for (const PlanKind kind : kinds) {
        const QString classes = QStringLiteral("element ") + kindClass(kind);
        items += legendItem(isLine(kind) ? lineSample(classes) : sample(classes), kindName(kind));
    }
    if (report.violationCount() > report.acceptedCount()) {
        items += legendItem(sample("element offends c0"), Words::tr("offends, in the colour of its rule"));
        items += legendItem(lineSample("measure c0"), Words::tr("distance between the closest points"));
    }
    if (report.suggestions)
        items += legendItem("<g class=\"ghost c0\"><path class=\"outline\" d=\"M2 2H24V12H2Z\"/></g>",
                            Words::tr("where it would comply"));
    if (report.acceptedCount() > 0)
        items += legendItem("<path class=\"pin excused\" d=\"M3 2H23V12H3Z\"/>", Words::tr("accepted"));
    if (!report.unjudged.empty())
        items += legendItem(sample("element house unjudged"), Words::tr("not judged"));
    return element("ul", ofClass("legend"), "\n" + items);
}

/// What clusters stand for where nothing opens them.
QString clusterKey(const std::vector<PlanPin>& pins, const std::vector<MergedFinding>& merged) {
    QString items;
    for (const PlanPin& pin : pins) {
        if (!pin.isCluster || kLevelWithoutScripts < pin.firstLevel || kLevelWithoutScripts > pin.lastLevel)
            continue;
        std::vector<std::size_t> numbers;
        for (const std::size_t finding : pin.findings)
            numbers.insert(numbers.end(), merged[finding].numbers.begin(), merged[finding].numbers.end());
        std::sort(numbers.begin(), numbers.end());
        items += element("li", {},
                         Words::tr("%1 stands for %2", "a cluster of pins and their numbers")
                             .arg("<b>" + clusterText(pin, merged) + "</b>", numbersText(numbers)));
    }
    return items.isEmpty() ? items : element("ul", ofClass("key"), "\n" + items);
}

} // namespace

QString planPane(const SiteReport& report, const std::vector<MergedFinding>& merged, const PlanIds& ids) {
    const DrawnPlan plan = drawPlan(report, merged, ids);
    if (plan.svg.isEmpty())
        return element("p", ofClass("plan-pane"), Words::tr("Nothing of this site can be drawn."));
    const QString remark = Words::tr("Numbers are those of the list. Houses are drawn with their stairs.");
    const QString hint =
        Words::tr("Drag moves the plan; Ctrl and the wheel, or two fingers, zoom it; so do + and −.");
    return element("figure", ofClass("plan-pane"),
                   "\n" +
                       element("div", ofClass("drawing"),
                               "\n" + plan.svg + element("div", ofClass("instruments"), gauge() + tools())) +
                       element("figcaption", {},
                               "\n" + legend(report) + element("p", {}, remark) +
                                   element("p", ofClass("hint"), hint) + clusterKey(plan.pins, merged)));
}

} // namespace firecheck
