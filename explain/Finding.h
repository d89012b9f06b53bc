#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace firestandard {

inline constexpr double kMetresPerMillimetre = 1e-3;

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

/// One record of the results with what a planner needs to act on it.
struct Finding {
    // Which record of the results it is about.
    std::size_t entry = 0;
    std::size_t index = 0;

    std::vector<Measure> measures; ///< distances from the nearest on
    std::string sentence;          ///< what is wrong, as a planner would say it; UTF-8, names as given
    std::optional<std::string> acceptedBecause;
};

} // namespace firestandard
