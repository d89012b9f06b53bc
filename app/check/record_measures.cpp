#include "check/record_measures.h"

#include "evaluators/distant/DistanceCondition.h"
#include "evaluators/position/fire_extinguisher_box.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace {

constexpr double kMetresPerMillimetre = 1e-3;

PlanPoint inMetres(const hrx::CVec3<double>& point) {
    return {point.x * kMetresPerMillimetre, point.y * kMetresPerMillimetre};
}

/// The entries about one element in a vector that is ordered by element.
template <class Entries> auto entriesOf(const Entries& entries, long long element) {
    using Entry = typename Entries::value_type;
    Entry wanted;
    wanted.element = element;
    return std::equal_range(entries.begin(), entries.end(), wanted,
                            [](const Entry& a, const Entry& b) { return a.element < b.element; });
}

/// A distance measure with the limits of the rule and no value yet.
Measure distanceLimits(const NuxStandardCheckRule& rule) {
    Measure limits;
    if (isFireExtinguisherBoxRule(rule.name)) {
        limits.maximum = kMaximumBoxDistance * kMetresPerMillimetre;
        return limits;
    }
    const DistanceCondition condition(rule);
    limits.minimum = condition.minimum() * kMetresPerMillimetre;
    if (condition.maximum() < kNoDistanceMark)
        limits.maximum = condition.maximum() * kMetresPerMillimetre;
    return limits;
}

void appendDistances(const NuxStandardCheckRule& record, const RuleRun& run, std::vector<Measure>& measures) {
    const std::unordered_set<qint64> related(record.relatedHandles.begin(), record.relatedHandles.end());
    const Measure limits = distanceLimits(record);
    auto [pair, end] = entriesOf(run.offendingPairs, record.handle);
    for (; pair != end; ++pair) {
        if (related.count(pair->other) == 0)
            continue;
        Measure measure = limits;
        measure.other = pair->other;
        measure.value = pair->distance * kMetresPerMillimetre;
        if (pair->points)
            measure.points =
                Measure::Points{inMetres(pair->points->onElement), inMetres(pair->points->onOther)};
        measures.push_back(measure);
    }
    std::stable_sort(measures.begin(), measures.end(),
                     [](const Measure& a, const Measure& b) { return a.value < b.value; });
}

Measure valueMeasure(const NuxStandardCheckRule& rule, const JudgedValue& judged) {
    const bool isWidth = rule.name == QLatin1String("Self_RoadMinWidth");
    const double scale = isWidth ? kMetresPerMillimetre : 1.0;
    Measure measure;
    measure.kind = isWidth ? Measure::Kind::Width : Measure::Kind::Area;
    measure.value = judged.value * scale;
    (isWidth ? measure.minimum : measure.maximum) = judged.limit * scale;
    return measure;
}

} // namespace

std::vector<Measure> recordMeasures(const NuxStandardCheckRule& record, const RuleRun& run) {
    std::vector<Measure> measures;
    const auto values = entriesOf(run.values, record.handle);
    if (values.first != values.second)
        measures.push_back(valueMeasure(record, *values.first));
    appendDistances(record, run, measures);
    return measures;
}
