#include "report/plan/plan_labels.h"

#include <array>

namespace firecheck {

namespace {

using LabelPlace = PlanLabel::Place;

constexpr double kPadding = 0.35;
constexpr double kBesidePin = 1.65; ///< from the middle of a pin to that of a text next to it

constexpr std::array<LabelPlace, 7> kPlaces = {LabelPlace::Centre, LabelPlace::Under, LabelPlace::Over,
                                               LabelPlace::Below,  LabelPlace::Above, LabelPlace::Right,
                                               LabelPlace::Left};

bool isOnElement(LabelPlace place) {
    return place == LabelPlace::Centre || place == LabelPlace::Under || place == LabelPlace::Over;
}

PlanRoom roomOf(const PlanLabel& label, double height) {
    const double halfWidth = 0.5 * (textWidth(label.text) + kPadding) * height;
    const double halfHeight = 0.5 * (1.0 + kPadding) * height;
    DrawnPoint centre = labelAnchor(label);
    centre.y += labelDrop(label.place) * height;
    if (label.place == LabelPlace::Right)
        centre.x += halfWidth;
    if (label.place == LabelPlace::Left)
        centre.x -= halfWidth;
    return {centre.x - halfWidth, centre.y - halfHeight, centre.x + halfWidth, centre.y + halfHeight};
}

bool fitsElement(const PlanLabel& label, double height) {
    const double reach = std::abs(labelDrop(label.place)) > 0.0 ? kBesidePin + 0.5 : 0.0;
    return textWidth(label.text) * height <= 2.0 * label.halfWidth && reach * height <= label.halfHeight;
}

/// Free of what stands in the plan at this level, and of the pins at this and each later one, because pins
/// part as the plan grows.
class FreeRoom {
public:
    FreeRoom(const std::vector<std::vector<PlanRoom>>& obstacles, double planWidth, double planHeight)
        : m_planWidth(planWidth), m_plan{0.0, 0.0, planWidth, planHeight} {
        for (int level = 0; level < kLabelLevels; ++level) {
            m_obstacles.emplace_back(planWidth, labelHeight(planWidth, level));
            for (const PlanRoom& obstacle : obstacles[static_cast<std::size_t>(level)])
                m_obstacles.back().take(obstacle);
        }
    }

    bool has(const PlanLabel& label, int level, const TakenRooms& taken) const {
        const PlanRoom room = roomOf(label, labelHeight(m_planWidth, level));
        if (!room.isWithin(m_plan) || !taken.hasRoomFor(room))
            return false;
        for (int later = level; later < kLabelLevels; ++later)
            if (!m_obstacles[static_cast<std::size_t>(later)].hasRoomFor(
                    roomOf(label, labelHeight(m_planWidth, later))))
                return false;
        return true;
    }

private:
    const double m_planWidth;
    const PlanRoom m_plan;
    std::vector<TakenRooms> m_obstacles;
};

/// True when the label found a place at this level.
bool place(PlanLabel& label, int level, double height, const FreeRoom& free, TakenRooms& taken) {
    for (const LabelPlace candidate : kPlaces) {
        label.place = candidate;
        const bool isSmall = label.halfWidth == 0.0; // a line has no inside to fit
        if (isOnElement(candidate) && !isSmall ? label.mustFitElement && !fitsElement(label, height)
                                               : level < label.firstLevelBeside)
            continue;
        if (free.has(label, level, taken)) {
            taken.take(roomOf(label, height));
            return true;
        }
    }
    return false;
}

} // namespace

double labelDrop(LabelPlace place) {
    switch (place) {
    case LabelPlace::Under:
        return kBesidePin;
    case LabelPlace::Over:
        return -kBesidePin;
    case LabelPlace::Below:
        return 0.67;
    case LabelPlace::Above:
        return -0.67;
    case LabelPlace::Centre:
    case LabelPlace::Right:
    case LabelPlace::Left:
        break;
    }
    return 0.0;
}

DrawnPoint labelAnchor(const PlanLabel& label) {
    switch (label.place) {
    case LabelPlace::Above:
        return {label.middle.x, label.middle.y - label.halfHeight};
    case LabelPlace::Below:
        return {label.middle.x, label.middle.y + label.halfHeight};
    case LabelPlace::Right:
        return {label.middle.x + label.halfWidth, label.middle.y};
    case LabelPlace::Left:
        return {label.middle.x - label.halfWidth, label.middle.y};
    case LabelPlace::Centre:
    case LabelPlace::Under:
    case LabelPlace::Over:
        break;
    }
    return label.middle;
}

void placeLabels(std::vector<PlanLabel>& labels, const std::vector<std::vector<PlanRoom>>& obstacles,
                 double planWidth, double planHeight) {
    const FreeRoom free(obstacles, planWidth, planHeight);
    for (int level = 0; level < kLabelLevels; ++level) {
        const double height = labelHeight(planWidth, level);
        TakenRooms taken(planWidth, height);
        for (const PlanLabel& label : labels)
            if (label.level >= 0)
                taken.take(roomOf(label, height));
        for (PlanLabel& label : labels)
            if (label.level < 0 && level >= label.firstLevel && place(label, level, height, free, taken))
                label.level = level;
    }
}

} // namespace firecheck
