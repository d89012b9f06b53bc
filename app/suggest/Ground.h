#pragma once

#include "site_lint/outline_overlap.h"
#include "suggest/TrialSite.h"

#include <map>
#include <optional>
#include <vector>

namespace firecheck {

/// Whose ground is whose, by the outlines in plan: what no rule asks and people ask all the same. An element
/// may stay where it stands in others, and may come to stand in no further one. Refers to the site, of which
/// it tells as it stood when this was made.
class Ground {
public:
    explicit Ground(const TrialSite& site);

    /// The element in the way when that of `index` is moved, across a wall or into another; nothing when
    /// there is none.
    std::optional<std::size_t> obstacleOf(std::size_t index, const PlanMove& move) const;

    /// The same for an element as it would be instead of that of `index`, or beside all others.
    std::optional<std::size_t> obstacleOf(const TrialElement& element,
                                          std::optional<std::size_t> index) const;

private:
    struct Piece {
        std::size_t index;
        PlanOutline outline;
    };

    bool isInTheWay(const TrialElement& element, std::size_t other) const;
    std::optional<std::size_t> obstacleIn(const TrialElement& element, const PlanOutline& outline,
                                          const std::vector<std::size_t>& excused) const;
    const std::vector<std::size_t>& standsIn(std::size_t index) const;

    const TrialSite& m_site;
    std::vector<Piece> m_pieces;         ///< of what others may not stand in, by their lower x
    std::vector<PlanOutline> m_outlines; ///< by index; without corners where there is none
    double m_widest = 0.0;               ///< extent of a piece along x, mm
    mutable std::map<std::size_t, std::vector<std::size_t>> m_standsIn;
};

} // namespace firecheck
