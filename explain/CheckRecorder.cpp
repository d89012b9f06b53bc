#include "explain/CheckRecorder.h"

#include "cad/UdDbObject.h"

#include <algorithm>

namespace firestandard {

namespace {

long long handleOf(const UdDbObject& object) {
    return object.Handle().GetID();
}

} // namespace

void CheckRecorder::beginRule(const NuxStandardCheckRule& rule) {
    m_runs.emplace_back();
    m_runs.back().rule = rule;
    m_takenUp.clear();
    m_order.clear();
    m_last = nullptr;
    m_begin = std::chrono::steady_clock::now();
}

void CheckRecorder::endRule() {
    RuleRun& run = m_runs.back();
    run.time = std::chrono::steady_clock::now() - m_begin;
    for (const long long handle : m_order) {
        const TakenUp& element = m_takenUp[handle];
        if (element.isJudged)
            ++run.judged;
        else if (element.why)
            run.unjudged.push_back({handle, *element.why});
    }
    std::stable_sort(run.offences.begin(), run.offences.end(),
                     [](const Offence& a, const Offence& b) { return a.element < b.element; });
}

void CheckRecorder::compared(const Comparison& comparison) {
    takenUp(comparison.element).isJudged = true;
    if (!comparison.measurement)
        return;
    RuleRun& run = m_runs.back();
    if (comparison.other && comparison.measurement->quantity == Quantity::Distance)
        ++run.pairCount;
    if (comparison.offends)
        run.offences.push_back({handleOf(comparison.element),
                                comparison.other ? handleOf(*comparison.other) : 0, *comparison.measurement,
                                comparison.contact});
}

void CheckRecorder::notJudged(const UdDbObject& element, NotJudged why) {
    takenUp(element).why = why;
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
