#pragma once

#include "evaluators/CheckObserver.h"
#include "rules_config/NuxStandardCheckRule.h"

#include <chrono>
#include <optional>
#include <unordered_map>
#include <vector>

namespace firestandard {

/// A measured comparison that takes part in a violation.
struct Offence {
    long long element = 0;
    long long other = 0; ///< 0 for an element judged by itself
    Measurement measurement;
    std::optional<Contact> contact; ///< nothing when the rule took the distance for granted
};

struct UnjudgedElement {
    long long element = 0;
    NotJudged why;
};

/// What one rule looked at during a check.
struct RuleRun {
    NuxStandardCheckRule rule;
    std::size_t judged = 0;                ///< elements that it compared
    std::size_t pairCount = 0;             ///< pairs that it judged by distance
    std::vector<Offence> offences;         ///< by ascending handle of the element
    std::vector<UnjudgedElement> unjudged; ///< elements that it compared with nothing, as it came to them
    std::chrono::nanoseconds time{0};
};

/// Watches a check as long as it lives. Of what it is told it keeps what reports name, so that it needs no
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
    void compared(const Comparison& comparison) override;
    void notJudged(const UdDbObject& element, NotJudged why) override;
    void pairNotJudged(const UdDbObject&, const UdDbObject&, NotJudged) override {}

private:
    struct TakenUp {
        bool isJudged = false;
        std::optional<NotJudged> why;
    };

    TakenUp& takenUp(const UdDbObject& element);

    std::vector<RuleRun> m_runs;
    std::unordered_map<long long, TakenUp> m_takenUp; ///< the elements of the rule that is running
    std::vector<long long> m_order;                   ///< in which they came
    long long m_lastHandle = 0;
    TakenUp* m_last = nullptr; ///< that handle's entry; rules mostly stay with one element for a while
    std::chrono::steady_clock::time_point m_begin;
};

} // namespace firestandard
