#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace firestandard {

inline constexpr double kMetresPerMillimetre = 1e-3;

/// Metres, square metres. Limits further from 0 are told as this one.
inline constexpr double kBeyondAnySite = 1e9;

/// A point in plan, metres.
struct PlanPoint {
    double x = 0.0;
    double y = 0.0;
};

/// A value that a rule compared with its limits: metres for distances and widths, square metres for areas.
struct Measure {
    enum class Kind { Distance, Width, Area };

    Kind kind = Kind::Distance;
    long long other = 0; ///< handle of the other element of a distance
    double value = 0.0;
    std::optional<double> minimum;
    std::optional<double> maximum;

    /// The two closest points of a distance; nothing when the rule takes it for 0 instead of measuring.
    struct Points {
        PlanPoint onElement;
        PlanPoint onOther;
    };
    std::optional<Points> points;
};

/// That a violation was accepted at a value than which it has got worse.
struct Outgrown {
    double value = 0.0; ///< as a Measure has it
    std::string reason;
};

/// Reports tell this many of what a violation relates to, and count the others: a rule may relate one element
/// to every box of a large site.
inline constexpr std::size_t kMostTold = 5;

/// One record of the results with what a planner needs to act on it.
struct Finding {
    // Which record of the results it is about.
    std::size_t entry = 0;
    std::size_t index = 0;

    std::vector<Measure> measures; ///< distances from the nearest on, the first kMostTold
    std::size_t measureCount = 0;  ///< of all, told or not
    std::vector<long long>
        related; ///< handles from the nearest on, or as the record has them; the first kMostTold
    std::size_t relatedCount = 0; ///< of all, told or not
    std::string sentence;         ///< what is wrong, as a planner would say it; UTF-8, names as given

    // See CheckReport::tellFewOfEach.
    std::size_t further = 0;         ///< records without a finding that this one stands for
    std::size_t furtherAccepted = 0; ///< those of them that are accepted

    // Set by whoever keeps what was accepted.
    std::optional<std::string> acceptedBecause;
    std::optional<Outgrown> outgrown;

    /// How many records it stands for, itself included, and how many of them are accepted.
    std::size_t recordCount() const { return 1 + further; }
    std::size_t acceptedCount() const { return (acceptedBecause ? 1 : 0) + furtherAccepted; }
};

} // namespace firestandard
