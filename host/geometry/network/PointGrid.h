#pragma once

#include "geometry/network/JoiningTolerance.h"

#include <cstddef>
#include <optional>
#include <unordered_map>
#include <vector>

namespace hrx::network {

/// Numbered points, filed by square cells as wide as the joining tolerance reaches, so that those within it
/// are found among a few.
class PointGrid {
public:
    explicit PointGrid(const JoiningTolerance& tolerance) : m_tolerance(tolerance) {}

    void add(std::size_t number, const CVec2<double>& point);

    /// The numbers of all points that the tolerance joins with this one.
    std::vector<std::size_t> joinedWith(const CVec2<double>& point) const;

    /// The nearest of them; of points equally near the lowest.
    std::optional<std::size_t> nearestJoinedWith(const CVec2<double>& point) const;

private:
    struct Entry {
        std::size_t number;
        CVec2<double> point;
    };
    struct Cell {
        double column;
        double row;
        bool operator==(const Cell& other) const { return column == other.column && row == other.row; }
    };
    struct CellHash {
        std::size_t operator()(const Cell& cell) const;
    };

    Cell cellOf(const CVec2<double>& point) const;
    template <class Visitor> void visitJoined(const CVec2<double>& point, Visitor visit) const;

    JoiningTolerance m_tolerance;
    std::unordered_map<Cell, std::vector<Entry>, CellHash> m_cells;
};

} // namespace hrx::network
