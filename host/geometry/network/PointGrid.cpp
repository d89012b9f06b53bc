#include "geometry/network/PointGrid.h"

#include <cmath>
#include <functional>
#include <limits>

namespace hrx::network {

std::size_t PointGrid::CellHash::operator()(const Cell& cell) const {
    const std::size_t column = std::hash<double>()(cell.column);
    return column * 31 + (column >> 17) + std::hash<double>()(cell.row);
}

PointGrid::Cell PointGrid::cellOf(const CVec2<double>& point) const {
    return {std::floor(point.x / m_tolerance.reach()), std::floor(point.y / m_tolerance.reach())};
}

void PointGrid::add(std::size_t number, const CVec2<double>& point) {
    m_cells[cellOf(point)].push_back({number, point});
}

template <class Visitor> void PointGrid::visitJoined(const CVec2<double>& point, Visitor visit) const {
    const Cell home = cellOf(point);
    for (const double across : {-1.0, 0.0, 1.0}) {
        for (const double up : {-1.0, 0.0, 1.0}) {
            const auto cell = m_cells.find({home.column + across, home.row + up});
            if (cell == m_cells.end())
                continue;
            for (const Entry& entry : cell->second) {
                if (m_tolerance.joins(entry.point, point))
                    visit(entry);
            }
        }
    }
}

std::vector<std::size_t> PointGrid::joinedWith(const CVec2<double>& point) const {
    std::vector<std::size_t> numbers;
    visitJoined(point, [&](const Entry& entry) { numbers.push_back(entry.number); });
    return numbers;
}

std::optional<std::size_t> PointGrid::nearestJoinedWith(const CVec2<double>& point) const {
    std::optional<std::size_t> nearest;
    double least = std::numeric_limits<double>::infinity();
    visitJoined(point, [&](const Entry& entry) {
        const double distance = length(entry.point - point);
        if (distance < least || (distance == least && entry.number < *nearest)) {
            least = distance;
            nearest = entry.number;
        }
    });
    return nearest;
}

} // namespace hrx::network
