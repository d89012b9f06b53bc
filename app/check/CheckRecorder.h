#pragma once

#include "rules_config/NuxStandardCheckRule.h"
#include "site/CheckObserver.h"

#include <chrono>
#include <optional>
#include <vector>

/// The distance by which a rule judged two elements, mm.
struct JudgedPair {
    long long element = 0;
    long long other = 0;
    double distance = 0.0;

    /// Closest points; nothing when the rule took the distance for granted instead of measuring solids.
    struct Points {
        hrx::CVec3<double> onElement;
        hrx::CVec3<double> onOther;
    };
    std::optional<Points> points;
};

struct JudgedValue {
    long long element = 0;
    double value = 0.0;
    double limit = 0.0;
};

/// What one rule looked at during a check.
struct RuleRun {
    NuxStandardCheckRule rule;
    std::size_t found = 0;                  ///< elements that it found to judge
    std::size_t pairCount = 0;              ///< pairs that it judged by distance
    std::vector<JudgedValue> values;        ///< by ascending handle
    std::vector<JudgedPair> offendingPairs; ///< those that break the rule, by ascending handle
    std::optional<long long> unmeasured;    ///< the last element found, when it was compared with nothing
    std::chrono::nanoseconds time{0};
};

/// Watches a check as long as it lives. Of the pairs it keeps those that reports name, so that it needs no
/// more memory than the results.
class CheckRecorder : public CheckObserver {
public:
    CheckRecorder() { setCheckObserver(this); }
    ~CheckRecorder() override { setCheckObserver(nullptr); }
    CheckRecorder(const CheckRecorder&) = delete;
    CheckRecorder& operator=(const CheckRecorder&) = delete;

    /// One entry for each rule that was run, in the order of the runs.
    std::vector<RuleRun> takeRuns() { return std::move(m_runs); }

    void beginRule(const NuxStandardCheckRule& rule) override;
    void endRule() override;
    void found(const UdDbObject& element) override;
    void valued(const UdDbObject& element, double value, double limit) override;
    void measured(double distance, const hrx::CVec3<double>& onFirst,
                  const hrx::CVec3<double>& onSecond) override;
    void judgedPair(const UdDbObject& element, const UdDbObject& other, double distance) override;

private:
    /// Files the pairs of the element that came last.
    void keepOffendingPairs();

    std::vector<RuleRun> m_runs;
    std::vector<JudgedPair> m_pairsOfElement;
    std::optional<JudgedPair::Points> m_lastMeasured;
    long long m_lastFound = 0;
    std::chrono::steady_clock::time_point m_begin;
};
