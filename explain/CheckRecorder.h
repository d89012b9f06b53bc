#pragma once

#include "evaluators/CheckObserver.h"
#include "explain/Finding.h"
#include "rules_config/NuxStandardCheckRule.h"

#include <chrono>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace firestandard {

/// The measured comparisons that take part in violations of one element.
struct Offences {
    std::vector<Measure> nearest; ///< by ascending value, the first kMostTold; of equals as they came
    std::size_t count = 0;        ///< of all

    void add(Measure measure);
};

/// An element that a rule took up and compared with nothing, or could not compare others with.
struct Unjudged {
    long long element = 0;
    NotJudged why;
    std::string reason; ///< see unjudgedReason; empty where nobody needs it
};

/// What one rule looked at during a check.
struct RuleRun {
    NuxStandardCheckRule rule;
    std::size_t judged = 0;                           ///< elements that it compared
    std::size_t pairCount = 0;                        ///< pairs that it judged by distance
    std::unordered_map<long long, Offences> offences; ///< by handle of the element
    std::vector<Unjudged> unjudged;     ///< elements that it compared with nothing, as it came to them
    std::vector<Unjudged> unfit;        ///< elements that it could compare nothing with
    std::size_t neverMeasuredPairs = 0; ///< pairs of types that the library has no measure for
    bool canOffend = false;             ///< some comparison could have had an outcome that offends
    std::chrono::nanoseconds time{0};
};

/// Watches a check as long as it lives. Of what it is told it keeps what reports name, so that it needs
/// memory in proportion to the elements, not to the pairs.
class CheckRecorder : public CheckObserver {
public:
    CheckRecorder() { setCheckObserver(this); }
    ~CheckRecorder() override { setCheckObserver(nullptr); }
    CheckRecorder(const CheckRecorder&) = delete;
    CheckRecorder& operator=(const CheckRecorder&) = delete;

    /// One entry for each rule that was run, in the order of the runs.
    std::vector<RuleRun> takeRuns() { return std::move(m_runs); }

    /// Whether any rule compared the element, with whatever outcome.
    bool hasCompared(long long handle) const { return m_compared.count(handle) != 0; }

    void beginRule(const NuxStandardCheckRule& rule) override;
    void endRule() override;
    void compared(const Comparison& comparison) override;
    void notJudged(const UdDbObject& element, NotJudged why) override;
    void pairNotJudged(const UdDbObject& element, const UdDbObject& other, NotJudged why) override;

private:
    struct TakenUp {
        bool isJudged = false;
        std::optional<NotJudged> why;
        std::string reason;
        Offences offences;
    };

    TakenUp& takenUp(const UdDbObject& element);

    std::vector<RuleRun> m_runs;
    std::unordered_map<long long, TakenUp> m_takenUp; ///< the elements of the rule that is running
    std::vector<long long> m_order;                   ///< in which they came
    std::unordered_set<long long> m_unfit;            ///< elements that pairs of that rule failed for
    std::unordered_set<long long> m_compared;         ///< elements that any rule compared
    long long m_lastHandle = 0;
    TakenUp* m_last = nullptr; ///< that handle's entry; rules mostly stay with one element for a while
    std::chrono::steady_clock::time_point m_begin;
};

} // namespace firestandard
