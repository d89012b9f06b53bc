#pragma once

#include "explain/Finding.h"
#include "json/Json.h"
#include "report/plan/PlanShape.h"

#include <optional>
#include <string>
#include <vector>

namespace firecheck {

/// A rule, and the elements that it finds fault with.
struct SuggestedRemoval {
    std::string rule;
    long long element = 0; ///< 0 for the site as a whole
    long long other = 0;   ///< 0 for none
};

/// A value as the engine measures it once the change is made: metres, or square metres of areas.
struct SuggestedValue {
    std::string rule;
    long long element = 0;
    long long other = 0; ///< 0 for none
    double value = 0.0;
    bool isArea = false;
};

/// An object of the site file as it would be.
struct SuggestedObject {
    long long handle = 0;
    std::string className;
    bool isNew = false;
    Json keys;                                        ///< that differ, with their values; of a new object all
    std::vector<PlanPath> outline = {};               ///< mm, where it would stand
    std::optional<firestandard::PlanPoint> from = {}; ///< middle of where it stands; nothing for a new one
    std::optional<firestandard::PlanPoint> to = {};
};

/// One change, on which the engine has been asked.
struct SuggestedStep {
    std::string kind;                                 ///< "move", "turn", "widen", ...
    std::optional<firestandard::PlanPoint> move = {}; ///< metres to the east and to the north
    std::vector<SuggestedObject> objects;             ///< one, but for what is added together
    std::vector<SuggestedRemoval> removes;
    std::vector<SuggestedValue> values;
    std::string sentence; ///< what to do, and what the rule measures then; UTF-8
};

/// What would remove a finding: one change or a few, or none and why.
struct Suggestion {
    std::size_t finding = 0; ///< in the report's findings
    std::vector<SuggestedStep> steps;
    std::string obstacle; ///< where nothing helps, what stands in the way
};

/// A sequence of changes for a whole site, in which each is judged with those before it.
struct SitePlan {
    struct Remainder {
        SuggestedRemoval what;
        std::string sentence; ///< what is wrong
        std::string obstacle; ///< why it stays
    };
    std::vector<SuggestedStep> steps;
    std::vector<Remainder> remaining;
    Json site; ///< with all changes
};

} // namespace firecheck
