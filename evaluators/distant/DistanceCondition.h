#pragma once

#include "rules_config/NuxStandardCheckRule.h"

#include <optional>

namespace firestandard {

/// A measured distance strictly above this is none; also the maximum of a rule that names none.
inline constexpr double kNoDistanceMark = 99999999999.0;

/// What a distance rule asks of a distance, in millimetres. Read from the rule once and then asked for every
/// pair.
class DistanceCondition {
public:
    /// `distantValue` is "minimum" or "minimum:maximum" in metres, further parts ignored; a part that is not
    /// a number reads as 0, also an empty one. `constraintCondition` is "less" (than the minimum offends) or
    /// "less or more"; under any other word no distance offends.
    explicit DistanceCondition(const NuxStandardCheckRule& rule);

    /// Both limits pass; no distance at all, above kNoDistanceMark, offends; a NaN passes.
    bool isDistanceViolated(double distance) const;

    // The limits that distances are judged by; nothing where the condition does not judge by one.
    std::optional<double> minimum() const;
    std::optional<double> maximum() const;

private:
    enum class Word { Less, LessOrMore, Unknown };

    Word m_word;
    double m_minimum;
    double m_maximum;
};

} // namespace firestandard
