#pragma once

#include <QString>

#include <map>
#include <vector>

namespace firecheck {

/// A rectangle of the drawing that a text takes up, metres, y downwards.
struct PlanRoom {
    double left = 0.0;
    double top = 0.0;
    double right = 0.0;
    double bottom = 0.0;

    bool overlaps(const PlanRoom& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
    bool isWithin(const PlanRoom& other) const {
        return left >= other.left && right <= other.right && top >= other.top && bottom <= other.bottom;
    }
};

/// Magnifications at which labels are shown. At level n the plan is kNarrowestPlan * 2^n pixels wide or
/// wider, and labels are kLabelPixels high whatever the level.
constexpr int kLabelLevels = 7;
constexpr double kNarrowestPlan = 340.0;
constexpr double kLabelPixels = 11.0;

/// Height of a label in the plan's own metres.
double labelHeight(double planWidth, int level);

/// Width of a text in label heights, rather more than less.
double textWidth(const QString& text);

/// The rooms taken so far, by the cells of a grid that they reach into.
class TakenRooms {
public:
    TakenRooms(double planWidth, double labelHeight);

    bool hasRoomFor(const PlanRoom& room) const;
    void take(const PlanRoom& room);

private:
    template <class Visit> bool everyCell(const PlanRoom& room, Visit visit) const;

    double m_cell;
    std::map<long, std::vector<PlanRoom>> m_rooms;
};

} // namespace firecheck
