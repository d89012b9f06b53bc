#pragma once

#include "suggest/Ground.h"
#include "suggest/TrialSite.h"

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace firecheck {

/// What may be changed, and how far.
struct SuggestOptions {
    double reach = 10e3;           ///< longest move, mm
    std::set<long long> kept;      ///< elements that stay as they are
    std::set<std::string> movable; ///< classes of which objects may be moved beside those that mostly are
};

/// Classes whose objects are moved without being asked for: what is set up for the time of building.
const std::set<std::string>& movableClasses();

/// Classes whose objects are never moved: walls with their gates, and what has no place in plan.
const std::set<std::string>& unmovableClasses();

/// What is done to an element, for those who tell of it.
struct Action {
    enum class Kind {
        Move,
        Turn,         ///< `value` degrees counter-clockwise
        Widen,        ///< to `value` mm
        Raise,        ///< by `value` mm
        Bury,         ///< `value` mm deep
        BothStairs,   ///< one at each end
        Floors,       ///< `value` instead of `before`
        Shorten,      ///< to `value` mm from `before`
        Partitions,   ///< at `positions`, mm
        MakeFireRoad, ///< of a road
        Add,          ///< a new element
    };
    Kind kind = Kind::Move;
    std::size_t index = 0; ///< of the element, unless it is new
    PlanMove move = {};
    double value = 0.0;
    double before = 0.0;
    std::vector<double> positions = {};
};

using Targets = std::set<Offence>;

/// A change that the engine has judged: on the whole site it removes all that it is meant to, brings up
/// nothing new and makes nothing worse.
struct Proposal {
    Change change;
    Action action;
    std::vector<Offence> removed; ///< with what it is meant to
    Verdict after;                ///< with the values of what it is meant to remove
};

/// How often tries failed for what.
struct Obstacles {
    std::map<std::size_t, std::size_t> rules;    ///< by number
    std::map<std::size_t, std::size_t> elements; ///< by index
};

/// Where changes of one site are tried.
class Workbench {
public:
    Workbench(TrialSite& site, const SuggestOptions& options);

    const TrialSite& site() const { return m_site; }
    const Ground& ground() const { return *m_ground; }
    const SuggestOptions& options() const { return m_options; }

    /// Whether the element opens and nobody keeps it.
    bool mayChange(std::size_t index) const;
    bool mayMove(std::size_t index) const;

    /// The value by which an offence of the site as it stands was judged; null for none.
    const JudgedValue* value(const Offence& offence) const;

    /// Whether a difference is what is wanted; notes what is against it where the targets are met.
    bool meets(const OffenceDifference& difference, const Targets& targets);
    void noteObstacle(std::size_t index) { ++m_obstacles.elements[index]; }

    /// Nothing where the engine does not agree.
    std::optional<Proposal> verified(const Change& change, const Action& action, const Targets& targets);

    void apply(const Proposal& proposal);

    Obstacles takeObstacles();

private:
    TrialSite& m_site;
    const SuggestOptions& m_options;
    std::unique_ptr<Ground> m_ground;
    Obstacles m_obstacles;
};

} // namespace firecheck
