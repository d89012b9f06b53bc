#include "evaluators/position/door_to_door.h"

#include "cad/UdDbBlock.h"
#include "elements/NUXWallObject.h"
#include "evaluators/RuleOutcome.h"
#include "evaluators/rule_catalogue.h"
#include "site/model_space_walk.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace firestandard {

namespace {

constexpr double kRightAngle = 1.5707963267948966;
constexpr double kFullTurn = 6.283185307179586;

using Vector = hrx::CVec2<double>;
using DoorMap = std::map<double, DoorData>;
using Doors = std::vector<UdDbObjectId>;
using Walls = std::vector<const NUXWallObject*>;

Vector fromTo(const Vector& from, const Vector& to) {
    return {to.x - from.x, to.y - from.y};
}

double cross(const Vector& u, const Vector& v) {
    return u.x * v.y - u.y * v.x;
}

bool isCorner(const Vector& a, const Vector& b) {
    const Vector between = fromTo(a, b);
    return between.x * between.x + between.y * between.y <= kCornerTolerance * kCornerTolerance;
}

/// Deliberate: the dot product is that of the vectors as they are, not of unit vectors. The corners of
/// existing drawings are judged so.
double angleOf(const Vector& u, const Vector& v, double signedCross) {
    const double angle = std::acos(std::clamp(u.x * v.x + u.y * v.y, -1.0, 1.0));
    return signedCross < -std::numeric_limits<double>::epsilon() ? kFullTurn - angle : angle;
}

Walls collectWalls(const UdDbBlock& modelSpace) {
    Walls walls;
    walkModelSpace(modelSpace, [&](const UdDbObject* object) {
        if (const auto* wall = NUXWallObject::Cast(object))
            walls.push_back(wall);
    });
    return walls;
}

Doors doorList(const DoorMap& doorMap) {
    Doors doors;
    for (const auto& entry : doorMap) {
        if (!entry.second.flag)
            doors.push_back(entry.second.doorId);
    }
    return doors;
}

WallAxis axisOf(const NUXWallObject& wall) {
    return {wall.getStartPosition(), wall.getEndPosition()};
}

const UdDbObject* firstOpened(const Doors& doors) {
    UdDbObject* door = nullptr;
    UdDbOpenUdDbObject(door, doors.front(), static_cast<UdDb::OpenMode>(kForReading), false);
    return door;
}

class DoorWalk {
public:
    DoorWalk(const UdDbBlock& modelSpace, const NuxStandardCheckRule& rule)
        : m_walls(collectWalls(modelSpace)), m_outcome(rule) {}

    std::vector<NuxStandardCheckRule> violations() {
        for (const NUXWallObject* wall : m_walls) {
            const Doors doors = doorList(wall->getAssociationDoor());
            if (doors.size() >= 2)
                addTwoDoorsOfOneWall(*wall, doors);
            else if (doors.size() == 1)
                judgeNeighbours(*wall);
        }
        return m_outcome.takeViolations();
    }

private:
    void addTwoDoorsOfOneWall(const NUXWallObject& wall, const Doors& doors) {
        NuxStandardCheckRule& violation = m_outcome.addViolation();
        violation.handle = doors[0].Handle().GetID();
        if (doors[1].IsValid())
            violation.relatedHandles.push_back(doors[1].Handle().GetID());
        if (CheckObserver* observer = m_outcome.observer())
            observer->compared({wall, nullptr, true});
    }

    /// Between the one door of `wall` and the doors of the walls that meet it.
    void judgeNeighbours(const NUXWallObject& wall) {
        DoorMap workingCopy = wall.getAssociationDoor();
        NotJudged reason = NotJudged::NoNeighbour;
        bool isCompared = false;
        for (const NUXWallObject* neighbour : m_walls) {
            const DoorMap& neighbourDoors = neighbour->getAssociationDoor();
            if (neighbour == &wall || doorList(neighbourDoors).size() >= 2)
                continue;
            const std::optional<double> angle = cornerAngle(axisOf(wall), axisOf(*neighbour));
            if (!angle)
                continue;
            bool offends = false;
            bool isJudged = !doorList(neighbourDoors).empty();
            if (*angle > kRightAngle) {
                // Deliberate: the neighbour's doors stay in the working copy, so the next neighbour is
                // compared with them and no longer with the wall's own; existing results hold such chains.
                const Doors first = doorList(workingCopy);
                workingCopy = neighbourDoors;
                const Doors second = doorList(workingCopy);
                // Two doors together: neither list holds more than one.
                if (!first.empty() && !second.empty())
                    offends = isJudged = addPair(first, second);
            }
            CheckObserver* observer = m_outcome.observer();
            if (observer && isJudged)
                observer->compared({wall, neighbour, offends, atMost(Quantity::Angle, *angle, kRightAngle)});
            isCompared |= isJudged;
            if (!isJudged && !doorList(neighbourDoors).empty())
                reason = NotJudged::DidNotOpen;
        }
        if (CheckObserver* observer = m_outcome.observer(); observer && !isCompared)
            observer->notJudged(wall, reason);
    }

    /// False when one of the doors does not open.
    bool addPair(const Doors& first, const Doors& second) {
        const UdDbObject* firstDoor = firstOpened(first);
        const UdDbObject* secondDoor = firstOpened(second);
        if (!firstDoor || !secondDoor)
            return false;
        relate(m_outcome.addViolation(*firstDoor), *secondDoor);
        return true;
    }

    const Walls m_walls;
    RuleOutcome m_outcome;
};

} // namespace

// Deliberate, since existing drawings are judged by it: the first pair of ends that is near counts, not the
// nearest. Where the wall's end meets the neighbour, the cross product has its sign changed; where both ends
// meet, the wall's vector points towards the corner, in all other cases away from it.
std::optional<double> cornerAngle(const WallAxis& wall, const WallAxis& neighbour) {
    const Vector alongWall = fromTo(wall.start, wall.end);
    const Vector againstWall = fromTo(wall.end, wall.start);
    const Vector alongNeighbour = fromTo(neighbour.start, neighbour.end);
    const Vector againstNeighbour = fromTo(neighbour.end, neighbour.start);

    if (isCorner(wall.start, neighbour.end))
        return angleOf(alongWall, againstNeighbour, cross(alongWall, againstNeighbour));
    if (isCorner(wall.start, neighbour.start))
        return angleOf(alongWall, alongNeighbour, cross(alongWall, alongNeighbour));
    if (isCorner(wall.end, neighbour.start))
        return angleOf(againstWall, alongNeighbour, -cross(againstWall, alongNeighbour));
    if (isCorner(wall.end, neighbour.end))
        return angleOf(alongWall, againstNeighbour, -cross(alongWall, againstNeighbour));
    return std::nullopt;
}

std::vector<NuxStandardCheckRule> checkDoorToDoor(const UdDbBlock& modelSpace,
                                                  const NuxStandardCheckRule& rule) {
    return DoorWalk(modelSpace, rule).violations();
}

} // namespace firestandard
