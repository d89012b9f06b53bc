#include "report/plan/plan_room.h"

#include <algorithm>
#include <cmath>

namespace firecheck {

namespace {

constexpr double kLatinWidth = 0.58; ///< of a letter, in label heights
constexpr double kHanWidth = 1.05;
constexpr ushort kFirstWideCharacter = 0x2e80;

constexpr int kColumns = 64;
constexpr long kRowStride = 1 << 20;

} // namespace

double labelHeight(double planWidth, int level) {
    return planWidth * kLabelPixels / (kNarrowestPlan * std::pow(2.0, level));
}

double textWidth(const QString& text) {
    double width = 0.0;
    for (const QChar character : text)
        width += character.unicode() >= kFirstWideCharacter ? kHanWidth : kLatinWidth;
    return width;
}

TakenRooms::TakenRooms(double planWidth, double labelHeight)
    : m_cell(std::max(planWidth / kColumns, labelHeight * 4.0)) {}

bool TakenRooms::hasRoomFor(const PlanRoom& room) const {
    return everyCell(room, [&](long cell) {
        const auto found = m_rooms.find(cell);
        return found == m_rooms.end() ||
               std::none_of(found->second.begin(), found->second.end(),
                            [&](const PlanRoom& taken) { return taken.overlaps(room); });
    });
}

void TakenRooms::take(const PlanRoom& room) {
    everyCell(room, [&](long cell) {
        m_rooms[cell].push_back(room);
        return true;
    });
}

template <class Visit> bool TakenRooms::everyCell(const PlanRoom& room, Visit visit) const {
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

} // namespace firecheck
