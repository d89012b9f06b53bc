#include "report/plan/plan_labels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

namespace firecheck {

namespace {

constexpr double kLatinWidth = 0.58; ///< of a letter, in label heights
constexpr double kHanWidth = 1.05;
constexpr ushort kFirstWideCharacter = 0x2e80;
constexpr double kPadding = 0.35;

constexpr std::array<PlanLabel::Place, 5> kPlaces = {PlanLabel::Place::Centre, PlanLabel::Place::Below,
                                                     PlanLabel::Place::Above, PlanLabel::Place::Right,
                                                     PlanLabel::Place::Left};

struct Room {
    double left, top, right, bottom;

    bool overlaps(const Room& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
    bool isWithin(const Room& other) const {
        return left >= other.left && right <= other.right && top >= other.top && bottom <= other.bottom;
    }
};

double textWidth(const QString& text) {
    double width = 0.0;
    for (const QChar character : text)
        width += character.unicode() >= kFirstWideCharacter ? kHanWidth : kLatinWidth;
    return width;
}

Room roomOf(const PlanLabel& label, double height) {
    const double halfWidth = 0.5 * (textWidth(label.text) + kPadding) * height;
    const double halfHeight = 0.5 * (1.0 + kPadding) * height;
    DrawnPoint centre = labelAnchor(label);
    switch (label.place) {
    case PlanLabel::Place::Centre:
        break;
    case PlanLabel::Place::Above:
        centre.y -= halfHeight;
        break;
    case PlanLabel::Place::Below:
        centre.y += halfHeight;
        break;
    case PlanLabel::Place::Right:
        centre.x += halfWidth;
        break;
    case PlanLabel::Place::Left:
        centre.x -= halfWidth;
        break;
    }
    return {centre.x - halfWidth, centre.y - halfHeight, centre.x + halfWidth, centre.y + halfHeight};
}

/// The rooms taken so far, by the cells of a grid that they reach into.
class TakenRooms {
public:
    TakenRooms(double planWidth, double height) : m_cell(std::max(planWidth / kColumns, height * 4.0)) {}

    bool hasRoomFor(const Room& room) const {
        return everyCell(room, [&](long cell) {
            const auto found = m_rooms.find(cell);
            return found == m_rooms.end() ||
                   std::none_of(found->second.begin(), found->second.end(),
                                [&](const Room& taken) { return taken.overlaps(room); });
        });
    }

    void take(const Room& room) {
        everyCell(room, [&](long cell) {
            m_rooms[cell].push_back(room);
            return true;
        });
    }

private:
    static constexpr int kColumns = 64;
    static constexpr long kRowStride = 1 << 20;

    template <class Visit> bool everyCell(const Room& room, Visit visit) const {
        const long firstColumn = std::lround(std::floor(room.left / m_cell));
        const long lastColumn = std::lround(std::floor(room.right / m_cell));
        const long firstRow = std::lround(std::floor(room.top / m_cell));
        const long lastRow = std::lround(std::floor(room.bottom / m_cell));
        for (long row = firstRow; row <= lastRow; ++row)
            for (long column = firstColumn; column <= lastColumn; ++column)
                if (!visit(row * kRowStride + column))
                    return false;
        return true;
    }

    double m_cell;
    std::map<long, std::vector<Room>> m_rooms;
};

bool fitsElement(const PlanLabel& label, double height) {
    return textWidth(label.text) * height <= 2.0 * label.halfWidth;
}

/// True when the label found a place at this level.
bool place(PlanLabel& label, int level, const Room& plan, double height, TakenRooms& taken) {
    for (const PlanLabel::Place candidate : kPlaces) {
        const bool isBeside = candidate != PlanLabel::Place::Centre;
        if (isBeside ? level < label.firstLevelBeside : label.mustFitElement && !fitsElement(label, height))
            continue;
        label.place = candidate;
        const Room room = roomOf(label, height);
        if (room.isWithin(plan) && taken.hasRoomFor(room)) {
            taken.take(room);
            return true;
        }
    }
    return false;
}

} // namespace

double labelHeight(double planWidth, int level) {
    return planWidth * kLabelPixels / (kNarrowestPlan * std::pow(2.0, level));
}

DrawnPoint labelAnchor(const PlanLabel& label) {
    switch (label.place) {
    case PlanLabel::Place::Above:
        return {label.middle.x, label.middle.y - label.halfHeight};
    case PlanLabel::Place::Below:
        return {label.middle.x, label.middle.y + label.halfHeight};
    case PlanLabel::Place::Right:
        return {label.middle.x + label.halfWidth, label.middle.y};
    case PlanLabel::Place::Left:
        return {label.middle.x - label.halfWidth, label.middle.y};
    case PlanLabel::Place::Centre:
        break;
    }
    return label.middle;
}

void placeLabels(std::vector<PlanLabel>& labels, double planWidth, double planHeight) {
    const Room plan{0.0, 0.0, planWidth, planHeight};
    for (int level = 0; level < kLabelLevels; ++level) {
        const double height = labelHeight(planWidth, level);
        TakenRooms taken(planWidth, height);
        for (const PlanLabel& label : labels)
            if (label.level >= 0)
                taken.take(roomOf(label, height));
        for (PlanLabel& label : labels)
            if (label.level < 0 && level >= label.firstLevel && place(label, level, plan, height, taken))
                label.level = level;
    }
}

} // namespace firecheck
