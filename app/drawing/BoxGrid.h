#pragma once

#include "geometry/CBox2d.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <unordered_map>
#include <vector>

namespace firecheck {

/// Boxes of the plan, to be found by a point near them. Large boxes are in coarser grids, so that each lies
/// in at most four cells, whatever unit the drawing is in.
class BoxGrid {
public:
    /// `cell` is the side of the finest grid's cells, above 0.
    explicit BoxGrid(double cell) : m_cell(cell) {}

    /// A box that is not finite is never found.
    void add(const hrx::CBox2d& box, std::size_t number) {
        const double farthest =
            std::max({std::abs(box.low.x), std::abs(box.low.y), std::abs(box.high.x), std::abs(box.high.y)});
        const double extent = std::max(box.high.x - box.low.x, box.high.y - box.low.y);
        const double needed = std::max(extent, farthest / kReach) / m_cell;
        if (!std::isfinite(needed))
            return;
        const int level = needed <= 1.0 ? 0 : std::ilogb(needed) + 1;
        Cells& cells = m_levels[level];
        for (std::int64_t x = cellOf(box.low.x, level); x <= cellOf(box.high.x, level); ++x)
            for (std::int64_t y = cellOf(box.low.y, level); y <= cellOf(box.high.y, level); ++y)
                cells[key(x, y)].push_back(number);
    }

    /// Calls `visit` with the number of every box that may hold the point.
    template <class Visit> void near(const hrx::CVec2<double>& point, Visit visit) const {
        for (const auto& [level, cells] : m_levels) {
            if (!isWithinReach(point, level))
                continue;
            const auto found = cells.find(key(cellOf(point.x, level), cellOf(point.y, level)));
            if (found != cells.end())
                for (const std::size_t number : found->second)
                    visit(number);
        }
    }

private:
    using Cells = std::unordered_map<std::uint64_t, std::vector<std::size_t>>;

    static constexpr double kReach = 1e9; // cells either way, for whose numbers there is room

    double side(int level) const { return std::ldexp(m_cell, level); }
    bool isWithinReach(const hrx::CVec2<double>& point, int level) const {
        return std::max(std::abs(point.x), std::abs(point.y)) <= kReach * side(level);
    }
    std::int64_t cellOf(double coordinate, int level) const {
        return static_cast<std::int64_t>(std::floor(coordinate / side(level)));
    }
    static std::uint64_t key(std::int64_t x, std::int64_t y) {
        return static_cast<std::uint64_t>(x) << 32 | static_cast<std::uint32_t>(y);
    }

    double m_cell;
    std::map<int, Cells> m_levels;
};

} // namespace firecheck
