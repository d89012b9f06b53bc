#include "evaluators/position/door_to_door.h"

#include "cad/UdDbBlock.h"
#include "elements/NUXWallObject.h"
#include "evaluators/position/wall_corner.h"
#include "evaluators/violation_record.h"
#include "site/CheckObserver.h"
#include "site/model_space_walk.h"

namespace {

constexpr double kRightAngle = 1.5707963267948966;
constexpr double kDoorCountThreshold = 2.0;

using DoorMap = std::map<double, DoorData>;
using Doors = std::vector<UdDbObjectId>;
using Walls = std::vector<const NUXWallObject*>;

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

const UdDbObject* openDoor(const Doors& doors) {
    UdDbObject* door = nullptr;
    if (!doors.empty())
        UdDbOpenUdDbObject(door, doors.front(), UdDb::kForRead, false);
    return door;
}

NuxStandardCheckRule twoDoorsOfOneWall(const Doors& doors, const NuxStandardCheckRule& rule) {
    NuxStandardCheckRule record = rule;
    record.handle = doors[0].Handle().GetID();
    if (doors[1].IsValid())
        record.relatedHandles.push_back(doors[1].Handle().GetID());
    return record;
}

/// The violations between the one door of `wall` and the doors of the walls that meet it.
void judgeNeighbours(const NUXWallObject& wall, const Walls& walls, const NuxStandardCheckRule& rule,
                     std::vector<NuxStandardCheckRule>& violations) {
    DoorMap workingCopy = wall.getAssociationDoor();
    for (const NUXWallObject* neighbour : walls) {
        if (neighbour == &wall || doorList(neighbour->getAssociationDoor()).size() >= 2)
            continue;
        const std::optional<double> angle = cornerAngle(axisOf(wall), axisOf(*neighbour));
        if (!angle || !(*angle > kRightAngle))
            continue;

        // Deliberate: the neighbour's doors stay in the working copy, so the next neighbour is compared with
        // them and no longer with the wall's own.
        const Doors first = doorList(workingCopy);
        workingCopy = neighbour->getAssociationDoor();
        const Doors second = doorList(workingCopy);
        if (static_cast<double>(first.size() + second.size()) < kDoorCountThreshold)
            continue;
        const UdDbObject* firstDoor = openDoor(first);
        const UdDbObject* secondDoor = openDoor(second);
        if (!firstDoor || !secondDoor)
            continue;
        violations.push_back(violationOf(rule, *firstDoor));
        relate(violations.back(), *secondDoor);
    }
}

} // namespace

std::vector<NuxStandardCheckRule> checkDoorToDoor(const UdDbBlock& modelSpace,
                                                  const NuxStandardCheckRule& rule) {
    const Walls walls = collectWalls(modelSpace);
    std::vector<NuxStandardCheckRule> violations;
    for (const NUXWallObject* wall : walls) {
        const Doors doors = doorList(wall->getAssociationDoor());
        if (!doors.empty())
            observeFound(*wall);
        if (doors.size() >= 2)
            violations.push_back(twoDoorsOfOneWall(doors, rule));
        else if (doors.size() == 1)
            judgeNeighbours(*wall, walls, rule, violations);
    }
    return violations;
}
