#include "report/plan/plan_pins.h"

#include <algorithm>
#include <map>

namespace firecheck {

namespace {

constexpr std::size_t kMostInARow = 4;
constexpr int kLongestPin = 7;

PlanRoom roomOf(const PlanPin& pin, const std::vector<MergedFinding>& merged, double height) {
    double width = 0.0;
    if (pin.isCluster) {
        width = pinWidth(clusterText(pin, merged));
    } else {
        for (const std::size_t finding : pin.findings)
            width += pinWidth(pinText(merged[finding])) + kPinGap;
    }
    const double halfWidth = 0.5 * (width + kPinGap) * height;
    const double halfHeight = 0.5 * (kPinHeight + kPinGap) * height;
    return {pin.spot.x - halfWidth, pin.spot.y - halfHeight, pin.spot.x + halfWidth, pin.spot.y + halfHeight};
}

/// The pins of one level: those that would cover each other join to clusters at the spot of the first.
class PinsOfLevel {
public:
    PinsOfLevel(const std::vector<MergedFinding>& merged, double height)
        : m_merged(merged), m_height(height) {}

    void add(PlanPin pin) {
        PlanRoom room = roomOf(pin, m_merged, m_height);
        for (auto other = covered(room); other != m_placed.end(); other = covered(room)) {
            pin.spot = std::min(other->pin.findings.front(), pin.findings.front()) == pin.findings.front()
                           ? pin.spot
                           : other->pin.spot;
            pin.isCluster = true;
            pin.findings.insert(pin.findings.end(), other->pin.findings.begin(), other->pin.findings.end());
            std::sort(pin.findings.begin(), pin.findings.end());
            m_placed.erase(other);
            room = roomOf(pin, m_merged, m_height);
        }
        m_placed.push_back({std::move(pin), room});
    }

    template <class Visit> void every(Visit visit) const {
        for (const Placed& placed : m_placed)
            visit(placed.pin);
    }

private:
    struct Placed {
        PlanPin pin;
        PlanRoom room;
    };

    std::vector<Placed>::iterator covered(const PlanRoom& room) {
        return std::find_if(m_placed.begin(), m_placed.end(),
                            [&](const Placed& placed) { return placed.room.overlaps(room); });
    }

    const std::vector<MergedFinding>& m_merged;
    const double m_height;
    std::vector<Placed> m_placed;
};

} // namespace

double pinWidth(const QString& text) {
    return std::max(kPinHeight, textWidth(text) + 0.9);
}

QString pinText(const MergedFinding& merged) {
    const QString whole = numbersText(merged.numbers);
    return whole.size() <= kLongestPin ? whole : QString::number(merged.numbers.front()) + QChar(0x2026);
}

QString clusterText(const PlanPin& cluster, const std::vector<MergedFinding>& merged) {
    return QString::number(merged[cluster.findings.front()].numbers.front()) + " +" +
           QString::number(cluster.findings.size() - 1);
}

std::vector<PlanPin> placePins(const std::vector<PinnedElement>& elements,
                               const std::vector<MergedFinding>& merged, double planWidth) {
    std::vector<PlanPin> pins;
    std::map<std::vector<std::size_t>, std::size_t> previous; // those of the level before, by their findings
    for (int level = 0; level < kLabelLevels; ++level) {
        PinsOfLevel placed(merged, labelHeight(planWidth, level));
        for (const PinnedElement& element : elements)
            placed.add({element.spot, element.findings, element.findings.size() > kMostInARow, 0, 0});
        std::map<std::vector<std::size_t>, std::size_t> present;
        placed.every([&](const PlanPin& pin) {
            const auto known = previous.find(pin.findings);
            const bool isSame = known != previous.end() && pins[known->second].isCluster == pin.isCluster;
            present[pin.findings] = isSame ? known->second : pins.size();
            if (!isSame) {
                pins.push_back(pin);
                pins.back().firstLevel = level;
            }
            pins[present[pin.findings]].lastLevel = level;
        });
        previous = std::move(present);
    }
    return pins;
}

std::vector<std::vector<PlanRoom>> pinRooms(const std::vector<PlanPin>& pins,
                                            const std::vector<MergedFinding>& merged, double planWidth) {
    std::vector<std::vector<PlanRoom>> rooms(kLabelLevels);
    for (const PlanPin& pin : pins)
        for (int level = pin.firstLevel; level <= pin.lastLevel; ++level)
            rooms[static_cast<std::size_t>(level)].push_back(
                roomOf(pin, merged, labelHeight(planWidth, level)));
    return rooms;
}

} // namespace firecheck
