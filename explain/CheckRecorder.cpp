#include "explain/CheckRecorder.h"

#include "cad/UdDbObject.h"
#include "explain/measure_of.h"
#include "explain/unjudged_reason.h"

#include <algorithm>

namespace firestandard {

namespace {

long long handleOf(const UdDbObject& object) {
    return object.Handle().GetID();
}

constexpr double kFarthest = 99999999999.0; ///< what evaluators measure beyond it counts as no distance

/// Whether the limits would be broken by some value that could have been measured.
bool canOffend(const Comparison& comparison) {
    if (comparison.offends || !comparison.measurement)
        return true;
    const Measurement& told = *comparison.measurement;
    const bool isTakenForGranted = told.quantity == Quantity::Distance && !comparison.contact;
    return !isTakenForGranted &&
           ((told.minimum && *told.minimum > 0.0) || (told.maximum && *told.maximum < kFarthest));
}

} // namespace

void Offences::add(Measure measure) {
    ++count;
    const auto place = std::upper_bound(nearest.begin(), nearest.end(), measure,
                                        [](const Measure& a, const Measure& b) { return a.value < b.value; });
    if (nearest.size() == kMostTold && place == nearest.end())
        return;
    nearest.insert(place, std::move(measure));
    nearest.resize(std::min(nearest.size(), kMostTold));
}

void CheckRecorder::beginRule(const NuxStandardCheckRule& rule) {
    m_runs.emplace_back();
    m_runs.back().rule = rule;
    m_takenUp.clear();
    m_order.clear();
    m_unfit.clear();
    m_last = nullptr;
    m_begin = std::chrono::steady_clock::now();
}

void CheckRecorder::endRule() {
    RuleRun& run = m_runs.back();
    run.time = std::chrono::steady_clock::now() - m_begin;
    for (const long long handle : m_order) {
        TakenUp& element = m_takenUp[handle];
        if (element.isJudged)
            ++run.judged;
        else if (element.why)
            run.unjudged.push_back({handle, *element.why, std::move(element.reason)});
        if (element.offences.count > 0)
            run.offences[handle] = std::move(element.offences);
    }
}

void CheckRecorder::compared(const Comparison& comparison) {
    TakenUp& element = takenUp(comparison.element);
    if (!element.isJudged)
        m_compared.insert(handleOf(comparison.element));
    element.isJudged = true;
    if (comparison.other)
        m_compared.insert(handleOf(*comparison.other));
    RuleRun& run = m_runs.back();
    run.canOffend = run.canOffend || canOffend(comparison);
    if (!comparison.measurement)
        return;
    if (comparison.other && comparison.measurement->quantity == Quantity::Distance)
        ++run.pairCount;
    if (!comparison.offends)
        return;
    if (auto measure = measureOf(comparison))
        element.offences.add(std::move(*measure));
}

void CheckRecorder::notJudged(const UdDbObject& element, NotJudged why) {
    TakenUp& taken = takenUp(element);
    if (taken.why != why && isLeftOut(why))
        taken.reason = unjudgedReason(element, why);
    taken.why = why;
}

void CheckRecorder::pairNotJudged(const UdDbObject&, const UdDbObject& other, NotJudged why) {
    RuleRun& run = m_runs.back();
    run.neverMeasuredPairs += why == NotJudged::NeverMeasured;
    if (isLeftOut(why) && m_unfit.insert(handleOf(other)).second)
        run.unfit.push_back({handleOf(other), why, unjudgedReason(other, why)});
}

CheckRecorder::TakenUp& CheckRecorder::takenUp(const UdDbObject& element) {
    const long long handle = handleOf(element);
    if (m_last && m_lastHandle == handle)
        return *m_last;
    const auto [entry, isNew] = m_takenUp.try_emplace(handle);
    if (isNew)
        m_order.push_back(handle);
    m_lastHandle = handle;
    m_last = &entry->second;
    return *m_last;
}

} // namespace firestandard
