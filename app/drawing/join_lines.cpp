#include "drawing/join_lines.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace firecheck {

namespace {

/// Ends within the same hundredth of a millimetre, or in neighbouring ones, are one.
class Ends {
public:
    /// The number of the point.
    std::size_t at(const hrx::PolyPt2d& point) {
        const Cell cell{std::floor(point.x * kPerMillimetre), std::floor(point.y * kPerMillimetre)};
        for (const double dx : {0.0, -1.0, 1.0})
            for (const double dy : {0.0, -1.0, 1.0}) {
                const auto known = m_numbers.find({cell.first + dx, cell.second + dy});
                if (known != m_numbers.end())
                    return known->second;
            }
        const std::size_t number = m_numbers.size();
        m_numbers[cell] = number;
        return number;
    }

private:
    using Cell = std::pair<double, double>;
    static constexpr double kPerMillimetre = 100.0;
    std::map<Cell, std::size_t> m_numbers;
};

void append(const DrawnShape& path, bool isReversed, std::vector<hrx::PolyPt2d>& vertices) {
    const std::size_t count = path.vertices.size();
    for (std::size_t i = 0; i + 1 < count; ++i) {
        if (!isReversed) {
            vertices.push_back(path.vertices[i]);
            continue;
        }
        hrx::PolyPt2d vertex = path.vertices[count - 1 - i];
        vertex.bulge = -path.vertices[count - 2 - i].bulge;
        vertices.push_back(vertex);
    }
}

} // namespace

std::vector<JoinedOutline> joinedOutlines(const std::vector<const DrawnShape*>& paths) {
    Ends ends;
    std::vector<std::pair<std::size_t, std::size_t>> endsOf;
    std::map<std::size_t, std::vector<std::size_t>> pathsAt;
    for (std::size_t i = 0; i < paths.size(); ++i) {
        endsOf.emplace_back(ends.at(paths[i]->vertices.front()), ends.at(paths[i]->vertices.back()));
        pathsAt[endsOf[i].first].push_back(i);
        pathsAt[endsOf[i].second].push_back(i);
    }
    std::vector<JoinedOutline> outlines;
    std::vector<bool> isSeen(paths.size(), false);
    for (std::size_t first = 0; first < paths.size(); ++first) {
        JoinedOutline outline;
        std::size_t current = first;
        std::size_t start = endsOf[first].first;
        while (!isSeen[current]) {
            isSeen[current] = true;
            outline.members.push_back(current);
            const bool isReversed = endsOf[current].first != start;
            append(*paths[current], isReversed, outline.vertices);
            start = isReversed ? endsOf[current].first : endsOf[current].second;
            const std::vector<std::size_t>& meeting = pathsAt[start];
            if (meeting.size() != 2)
                break;
            current = meeting[0] == current ? meeting[1] : meeting[0];
        }
        if (start != endsOf[first].first || outline.members.size() < 2 || outline.vertices.size() < 2)
            continue;
        std::sort(outline.members.begin(), outline.members.end());
        outlines.push_back(std::move(outline));
    }
    return outlines;
}

} // namespace firecheck
