#include "suggest/move_search.h"

#include <algorithm>
#include <cmath>

namespace firecheck {

namespace {

using Vector = hrx::CVec2<double>;

constexpr int kCompassPoints = 16;
constexpr double kRingGrowth = 1.35;
constexpr std::size_t kMostVerified = 4;
constexpr double kFullTurn = 6.283185307179586;

long awayFromZero(double value) {
    constexpr double noise = 1e-6;
    const double steps = std::ceil(std::abs(value) / double(kLayoutStep) - noise);
    return static_cast<long>(value < 0.0 ? -steps : steps) * kLayoutStep;
}

PlanMove moveAlong(const Vector& direction, double length) {
    return {awayFromZero(direction.x * length), awayFromZero(direction.y * length)};
}

std::vector<Vector> directionsOf(const MoveGoal& goal) {
    std::vector<Vector> directions = goal.directions;
    // The four quarters first, so that of equal moves the plain one is taken.
    for (const int start : {0, 2, 1, 3})
        for (int i = start; i < kCompassPoints; i += 4)
            directions.push_back(
                {std::cos(kFullTurn * i / kCompassPoints), std::sin(kFullTurn * i / kCompassPoints)});
    return directions;
}

hrx::CBox2d grown(const hrx::CBox2d& box, double by) {
    return {{box.low.x - by, box.low.y - by}, {box.high.x + by, box.high.y + by}};
}

std::set<long long> handlesOf(const Targets& targets) {
    std::set<long long> handles;
    for (const Offence& offence : targets)
        handles.insert({offence.element, offence.other});
    return handles;
}

class MoveSearch {
public:
    MoveSearch(Workbench& bench, const MoveGoal& goal, double longest)
        : m_bench(bench), m_goal(goal), m_longest(longest), m_directions(directionsOf(goal)) {}

    std::optional<Proposal> shortest() {
        findInRings();
        refine();
        std::sort(m_working.begin(), m_working.end(), isShorter);
        for (std::size_t i = 0; i < std::min(m_working.size(), kMostVerified); ++i) {
            Action action;
            action.index = m_goal.index;
            action.move = m_working[i];
            if (auto proposal = m_bench.verified(changeOf(m_working[i]), action, m_goal.targets))
                return proposal;
        }
        return std::nullopt;
    }

private:
    static bool isShorter(const PlanMove& a, const PlanMove& b) { return a.length() < b.length(); }

    Change changeOf(const PlanMove& move) const {
        return {{m_goal.index, movedObject(m_bench.site().object(m_goal.index), move)}};
    }

    /// As far as the neighbourhood tells.
    bool works(const PlanMove& move) {
        const double length = move.length();
        if (length > m_longest || length <= 0.0)
            return false;
        const auto [known, isNew] = m_known.try_emplace(move, false);
        if (isNew) {
            known->second =
                isRoomFor(move) &&
                m_bench.meets(neighbourhoodFor(length).differenceWith(changeOf(move)), m_goal.targets);
            if (known->second)
                m_working.push_back(move);
        }
        return known->second;
    }

    bool isRoomFor(const PlanMove& move) {
        const auto obstacle = m_bench.ground().obstacleOf(m_goal.index, move);
        if (obstacle)
            m_bench.noteObstacle(*obstacle);
        return !obstacle;
    }

    /// Small for short moves, which most are.
    Neighbourhood& neighbourhoodFor(double length) {
        double radius = 1e3;
        while (radius < length)
            radius *= 4.0;
        const auto known = m_neighbourhoods.find(radius);
        if (known != m_neighbourhoods.end())
            return known->second;
        const hrx::CBox2d region = grown(m_bench.site().element(m_goal.index).shape.box, radius);
        std::set<long long> handles = handlesOf(m_goal.targets);
        handles.insert(m_bench.site().element(m_goal.index).handle);
        return m_neighbourhoods.emplace(radius, Neighbourhood(m_bench.site(), region, handles)).first->second;
    }

    /// Ring by ring around where the element stands, up to the first that holds a move that works.
    void findInRings() {
        double previous = 0.0;
        for (double length = std::max(m_goal.atLeast, double(kLayoutStep)); length <= m_longest * kRingGrowth;
             length *= kRingGrowth) {
            const double here = std::min(length, m_longest);
            for (const Vector& direction : m_directions) {
                // Nothing can be shorter than the first ring.
                if (works(moveAlong(direction, here)) && previous == 0.0 && isAsShortAsCanBe())
                    return;
            }
            if (!m_working.empty()) {
                shortenAlongEach(previous, here);
                return;
            }
            previous = here;
        }
    }

    bool isAsShortAsCanBe() const { return best().length() < m_goal.atLeast + 2.0 * kLayoutStep; }

    PlanMove best() const { return *std::min_element(m_working.begin(), m_working.end(), isShorter); }

    void shortenAlongEach(double tooShort, double longEnough) {
        for (const Vector& direction : m_directions) {
            if (!works(moveAlong(direction, std::min(longEnough, best().length() - kLayoutStep))) &&
                !(best().length() >= longEnough && works(moveAlong(direction, longEnough))))
                continue;
            double low = tooShort;
            double high = std::min(longEnough, best().length());
            while (high - low > double(kLayoutStep)) {
                const double middle = (low + high) * 0.5;
                (works(moveAlong(direction, middle)) ? high : low) = middle;
            }
        }
    }

    /// Shorter moves beside the best one, where two limits meet.
    void refine() {
        if (m_working.empty() || isAsShortAsCanBe())
            return;
        for (long step = 64 * kLayoutStep; step >= kLayoutStep; step /= 2)
            while (stepFrom(best(), step))
                ;
    }

    bool stepFrom(const PlanMove& from, long step) {
        for (const long dx : {-step, 0L, step})
            for (const long dy : {-step, 0L, step}) {
                const PlanMove to{from.dx + dx, from.dy + dy};
                if (isShorter(to, from) && works(to))
                    return true;
            }
        return false;
    }

    Workbench& m_bench;
    const MoveGoal& m_goal;
    const double m_longest;
    const std::vector<Vector> m_directions;
    std::map<double, Neighbourhood> m_neighbourhoods; ///< by how far they reach
    std::map<PlanMove, bool> m_known;
    std::vector<PlanMove> m_working;
};

} // namespace

std::optional<Proposal> shortestMove(Workbench& bench, const MoveGoal& goal, double shorterThan) {
    const double longest = std::min(bench.options().reach, shorterThan - double(kLayoutStep) * 0.5);
    const bool hasPlace = !bench.site().element(goal.index).shape.paths.empty();
    if (!hasPlace || goal.atLeast > longest)
        return std::nullopt;
    return MoveSearch(bench, goal, longest).shortest();
}

std::optional<Proposal> leastTurn(Workbench& bench, std::size_t index, const Targets& targets) {
    constexpr int coarse = 5;
    constexpr int rightAngle = 90;
    std::optional<Neighbourhood> neighbourhood;
    const auto works = [&](int degrees) {
        const auto turned = turnedObject(bench.site().object(index), degrees);
        if (!turned)
            return false;
        const TrialElement element = bench.site().elementOf(*turned);
        if (const auto obstacle = bench.ground().obstacleOf(element, index)) {
            bench.noteObstacle(*obstacle);
            return false;
        }
        if (!neighbourhood) {
            const hrx::CBox2d box = bench.site().element(index).shape.box;
            const double size = std::max(box.high.x - box.low.x, box.high.y - box.low.y);
            std::set<long long> handles = handlesOf(targets);
            handles.insert(bench.site().element(index).handle);
            neighbourhood.emplace(bench.site(), grown(box, size), handles);
        }
        return bench.meets(neighbourhood->differenceWith({{index, *turned}}), targets);
    };
    for (int size = coarse; size <= rightAngle; size += coarse)
        for (const int sign : {1, -1}) {
            if (!works(sign * size))
                continue;
            int degrees = size - coarse + 1;
            while (degrees < size && !works(sign * degrees))
                ++degrees;
            Action action;
            action.kind = Action::Kind::Turn;
            action.index = index;
            action.value = sign * degrees;
            const Change change{{index, *turnedObject(bench.site().object(index), sign * degrees)}};
            if (auto proposal = bench.verified(change, action, targets))
                return proposal;
        }
    return std::nullopt;
}

} // namespace firecheck
