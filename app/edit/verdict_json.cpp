#include "edit/verdict_json.h"

#include "explain/measure_text.h"
#include "report/plan/plan_kinds.h"
#include "report/unjudged_text.h"

#include <cmath>

namespace firecheck {

namespace {

std::string decimal(long long handle) {
    return std::to_string(handle);
}

/// To a thousandth of a millimetre: what a screen shows, and short.
double rounded(double millimetres) {
    return std::round(millimetres * 1e3) * 1e-3;
}

Json pointJson(const PlanPoint& metres) {
    return Json::array({rounded(metres.x / kMetresPerMillimetre), rounded(metres.y / kMetresPerMillimetre)});
}

Json measureJson(const Measure& measure) {
    Json json{{"value", measure.value},
              {"unit", measure.kind == Measure::Kind::Area ? "m2" : "m"},
              {"measured", firestandard::valueText(measure)}};
    if (measure.kind != Measure::Kind::Distance)
        return json;
    json["other"] = decimal(measure.other);
    json["line"] = Json();
    if (measure.points)
        json["line"] =
            Json::array({pointJson(measure.points->onElement), pointJson(measure.points->onOther)});
    return json;
}

Json findingJson(const SiteReport& report, const Finding& finding, const std::string& id) {
    const NuxStandardCheckRule& record = report.record(finding);
    Json handles = Json::array();
    if (record.handle != 0)
        handles.push_back(decimal(record.handle));
    for (const long long related : finding.related)
        handles.push_back(decimal(related));
    Json measures = Json::array();
    for (const Measure& measure : finding.measures)
        measures.push_back(measureJson(measure));
    return {{"id", id},
            {"rule", record.name.toStdString()},
            {"text", finding.sentence},
            {"handles", std::move(handles)},
            {"measures", std::move(measures)}};
}

Json rulesJson(const SiteReport& report) {
    Json rules = Json::array();
    for (const RuleCount& count : report.counts) {
        Json rule{{"rule", count.ruleName.toStdString()}, {"violations", count.violations}};
        for (const Finding& finding : report.findings) {
            const NuxStandardCheckRule& record = report.record(finding);
            if (record.name != count.ruleName)
                continue;
            rule["text"] = record.ruleDescription.toStdString();
            break;
        }
        rules.push_back(std::move(rule));
    }
    return rules;
}

Json notJudgedJson(const SiteReport& report) {
    Json list = Json::array();
    for (const firestandard::UnjudgedElement& element : report.unjudged)
        list.push_back({{"handle", decimal(element.handle)},
                        {"text", unjudgedText(report, element)},
                        {"rules", unjudgedByText(element)}});
    for (const PassedOver& passedOver : report.notJudged)
        list.push_back({{"handle", Json()}, {"text", passedOver.what + ": " + passedOver.reason}});
    return list;
}

Json doubtsJson(const std::vector<JudgedDoubt>& doubts) {
    Json list = Json::array();
    for (const JudgedDoubt& doubt : doubts)
        list.push_back(
            {{"handle", doubt.handle.empty() ? Json() : Json(doubt.handle)}, {"text", doubt.text}});
    return list;
}

Json pathJson(const PlanPath& path) {
    const auto pointOf = [](const hrx::CVec2<double>& point) {
        return Json::array({rounded(point.x), rounded(point.y)});
    };
    Json points = Json::array();
    for (const hrx::Edge2d& edge : path.edges) {
        points.push_back(pointOf(edge.start));
        if (edge.isArc())
            points.back().push_back(edge.bulge);
    }
    if (!path.isClosed)
        points.push_back(pointOf(path.edges.back().end));
    return {{"closed", path.isClosed}, {"points", std::move(points)}};
}

} // namespace

std::vector<std::string> findingIds(const SiteReport& report) {
    std::vector<std::string> ids;
    std::map<std::string, int> counts;
    for (const Finding& finding : report.findings) {
        const NuxStandardCheckRule& record = report.record(finding);
        std::string id = record.name.toStdString() + "/" + decimal(record.handle);
        const int number = ++counts[id];
        ids.push_back(number == 1 ? id : id + "/" + std::to_string(number));
    }
    return ids;
}

Json verdictJson(const Judgement& judgement) {
    const SiteReport& report = judgement.report;
    const std::vector<std::string> ids = findingIds(report);
    Json findings = Json::array();
    for (std::size_t i = 0; i < report.findings.size(); ++i)
        findings.push_back(findingJson(report, report.findings[i], ids[i]));
    return {{"findings", std::move(findings)},
            {"rules", rulesJson(report)},
            {"notJudged", notJudgedJson(report)},
            {"doubts", doubtsJson(judgement.doubts)},
            {"judgedMs",
             std::round(std::chrono::duration<double, std::milli>(judgement.time).count() * 10.0) * 0.1}};
}

ShapesJson::ShapesJson(const SiteReport& report) {
    for (const PlanShape& shape : report.plan)
        m_shapes[shape.handle] = &shape;
}

Json ShapesJson::of(long long handle) const {
    const auto found = m_shapes.find(handle);
    if (found == m_shapes.end())
        return {};
    const PlanShape& shape = *found->second;
    Json paths = Json::array();
    for (const PlanPath& path : shape.paths)
        if (!path.edges.empty())
            paths.push_back(pathJson(path));
    return {{"kind", kindClass(shape.kind)},
            {"title", shape.title},
            {"label", shape.label},
            {"paths", std::move(paths)}};
}

Json requiredDistancesJson(const std::vector<RequiredDistance>& distances) {
    Json zones = Json::array();
    for (const RequiredDistance& one : distances)
        zones.push_back({{"rule", one.rule},
                         {"other", decimal(one.other)},
                         {"limit", one.isLeast ? "atLeast" : "atMost"},
                         {"distance", one.distance},
                         {"measured", one.measured}});
    return zones;
}

Json suggestedChangesJson(const SuggestedChanges& suggested) {
    Json steps = Json::array();
    for (const SuggestedChanges::Step& step : suggested.steps) {
        Json changes = Json::array();
        for (const RequestedChange& change : step.changes) {
            Json json = Json::object();
            if (change.handle)
                json["handle"] = decimal(*change.handle);
            json["object"] = change.object;
            changes.push_back(std::move(json));
        }
        steps.push_back({{"sentence", step.sentence}, {"changes", std::move(changes)}});
    }
    return {{"steps", std::move(steps)}, {"obstacle", suggested.obstacle}};
}

} // namespace firecheck
