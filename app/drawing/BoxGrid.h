#pragma once

#include "geometry/CBox2d.h"

#include <cmath>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace firecheck {

/// Boxes of the plan, to be found by a point near them. A box that covers very many cells, or lies where no
/// site does, is looked at for each point.
class BoxGrid {
public:
    explicit BoxGrid(double cell) : m_cell(cell) {}

    void add(const hrx::CBox2d& box, std::size_t number) {
        if (!isWithinReach(box.low) || !isWithinReach(box.high) || cellCount(box) > kMostCells) {
            m_large.push_back(number);
            return;
        }
        for (std::int64_t x = cellOf(box.low.x); x <= cellOf(box.high.x); ++x)
            for (std::int64_t y = cellOf(box.low.y); y <= cellOf(box.high.y); ++y)
                m_cells[key(x, y)].push_back(number);
    }

    /// Calls `visit` with the number of every box that may hold the point.
    template <class Visit> void near(const hrx::CVec2<double>& point, Visit visit) const {
        for (const std::size_t number : m_large)
            visit(number);
        if (!isWithinReach(point))
            return;
        const auto found = m_cells.find(key(cellOf(point.x), cellOf(point.y)));
        if (found != m_cells.end())
            for (const std::size_t number : found->second)
                visit(number);
    }

private:
    static constexpr double kReach = 1e9; // cells either way, for whose numbers there is room
    static constexpr std::int64_t kMostCells = 1024;

    bool isWithinReach(const hrx::CVec2<double>& point) const {
        return std::abs(point.x) <= kReach * m_cell && std::abs(point.y) <= kReach * m_cell;
    }
    std::int64_t cellOf(double coordinate) const {
        return static_cast<std::int64_t>(std::floor(coordinate / m_cell));
    }
    std::int64_t cellCount(const hrx::CBox2d& box) const {
        return (cellOf(box.high.x) - cellOf(box.low.x) + 1) * (cellOf(box.high.y) - cellOf(box.low.y) + 1);
    }
    static std::uint64_t key(std::int64_t x, std::int64_t y) {
        return static_cast<std::uint64_t>(x) << 32 | static_cast<std::uint32_t>(y);
    }

    double m_cell;
    std::unordered_map<std::uint64_t, std::vector<std::size_t>> m_cells;
    std::vector<std::size_t> m_large;
};

} // namespace firecheck
