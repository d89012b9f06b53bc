#include "check/CheckRecorder.h"

#include "cad/UdDbObject.h"
#include "evaluators/distant/DistanceCondition.h"
#include "evaluators/position/fire_extinguisher_box.h"

#include <algorithm>
#include <iterator>

namespace {

long long handleOf(const UdDbObject& object) {
    return object.Handle().GetID();
}

} // namespace

void CheckRecorder::beginRule(const NuxStandardCheckRule& rule) {
    m_runs.emplace_back();
    m_runs.back().rule = rule;
    m_lastFound = 0;
    m_lastMeasured.reset();
    m_begin = std::chrono::steady_clock::now();
}

void CheckRecorder::endRule() {
    RuleRun& run = m_runs.back();
    run.time = std::chrono::steady_clock::now() - m_begin;
    const bool isCompared = !m_pairsOfElement.empty() && m_pairsOfElement.front().element == m_lastFound;
    if (m_lastFound != 0 && !isCompared)
        run.unmeasured = m_lastFound;
    keepOffendingPairs();
    const auto byElement = [](const auto& a, const auto& b) { return a.element < b.element; };
    std::stable_sort(run.offendingPairs.begin(), run.offendingPairs.end(), byElement);
    std::stable_sort(run.values.begin(), run.values.end(), byElement);
}

void CheckRecorder::found(const UdDbObject& element) {
    ++m_runs.back().found;
    m_lastFound = handleOf(element);
}

void CheckRecorder::valued(const UdDbObject& element, double value, double limit) {
    m_runs.back().values.push_back({handleOf(element), value, limit});
}

void CheckRecorder::measured(double, const hrx::CVec3<double>& onFirst, const hrx::CVec3<double>& onSecond) {
    m_lastMeasured = JudgedPair::Points{onFirst, onSecond};
}

void CheckRecorder::judgedPair(const UdDbObject& element, const UdDbObject& other, double distance) {
    const long long handle = handleOf(element);
    if (!m_pairsOfElement.empty() && m_pairsOfElement.front().element != handle)
        keepOffendingPairs();
    ++m_runs.back().pairCount;
    m_pairsOfElement.push_back({handle, handleOf(other), distance, m_lastMeasured});
    m_lastMeasured.reset();
}

void CheckRecorder::keepOffendingPairs() {
    RuleRun& run = m_runs.back();
    const auto keep = [&run](const JudgedPair& pair) { run.offendingPairs.push_back(pair); };
    if (isFireExtinguisherBoxRule(run.rule.name)) {
        // One box that serves the element is enough for it to pass, unless another touches it.
        const auto nearest = std::min_element(
            m_pairsOfElement.begin(), m_pairsOfElement.end(),
            [](const JudgedPair& a, const JudgedPair& b) { return a.distance < b.distance; });
        const bool offends = nearest != m_pairsOfElement.end() &&
                             (nearest->distance <= 0.0 || nearest->distance > kMaximumBoxDistance);
        if (offends)
            std::for_each(m_pairsOfElement.begin(), m_pairsOfElement.end(), keep);
    } else {
        const DistanceCondition condition(run.rule);
        for (const JudgedPair& pair : m_pairsOfElement)
            if (condition.isDistanceViolated(pair.distance))
                keep(pair);
    }
    m_pairsOfElement.clear();
}
