// The door-to-door rule against a plain transcription of its table of corners, on random walls whose ends
// meet in every order and which have several neighbours.
#include "cad/UdDbDocument.h"
#include "elements/NUXDoorObject.h"
#include "elements/NUXWallObject.h"
#include "evaluators/position/NUXRelElementTypePositionRule.h"
#include "evaluators/position/door_to_door.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <random>

using firestandard::WallAxis;

namespace {

struct Wall {
    double ends[2][2]; ///< start and end, x and y
    std::vector<qint64> doors;
};

/// One row of the table: the ends that meet, where each vector starts and points, and the sign of the cross
/// product.
struct Row {
    int end, otherEnd;
    int uFrom, uTo;
    int vFrom, vTo;
    double crossSign;
};
constexpr Row kTable[] = {
    {0, 1, 0, 1, 1, 0, 1.0}, {0, 0, 0, 1, 0, 1, 1.0}, {1, 0, 1, 0, 0, 1, -1.0}, {1, 1, 0, 1, 1, 0, -1.0}};

std::optional<double> angleByTable(const Wall& w, const Wall& v, int& usedRow) {
    for (const Row& row : kTable) {
        const double dx = w.ends[row.end][0] - v.ends[row.otherEnd][0];
        const double dy = w.ends[row.end][1] - v.ends[row.otherEnd][1];
        if (dx * dx + dy * dy > 10000.0)
            continue;
        const double ux = w.ends[row.uTo][0] - w.ends[row.uFrom][0];
        const double uy = w.ends[row.uTo][1] - w.ends[row.uFrom][1];
        const double vx = v.ends[row.vTo][0] - v.ends[row.vFrom][0];
        const double vy = v.ends[row.vTo][1] - v.ends[row.vFrom][1];
        double dot = ux * vx + uy * vy;
        dot = dot > 1.0 ? 1.0 : dot < -1.0 ? -1.0 : dot;
        double angle = std::acos(dot);
        if (row.crossSign * (ux * vy - uy * vx) < -2.220446049250313e-16)
            angle = 6.283185307179586 - angle;
        usedRow = static_cast<int>(&row - kTable);
        return angle;
    }
    return std::nullopt;
}

WallAxis axisOf(const Wall& wall) {
    return {{wall.ends[0][0], wall.ends[0][1]}, {wall.ends[1][0], wall.ends[1][1]}};
}

using Records = std::vector<std::pair<qint64, std::vector<qint64>>>;

Records expectedRecords(const std::vector<Wall>& walls, int (&rowCounts)[4], int& carriedOver) {
    Records records;
    for (std::size_t w = 0; w < walls.size(); ++w) {
        if (walls[w].doors.size() > 1)
            records.push_back({walls[w].doors[0], {walls[w].doors[1]}});
        if (walls[w].doors.size() != 1)
            continue;
        std::vector<qint64> held = walls[w].doors;
        for (std::size_t v = 0; v < walls.size(); ++v) {
            int row = 0;
            if (v == w || walls[v].doors.size() > 1)
                continue;
            const std::optional<double> angle = angleByTable(walls[w], walls[v], row);
            EXPECT_EQ(angle, firestandard::cornerAngle(axisOf(walls[w]), axisOf(walls[v])));
            if (!angle || !(*angle > 1.5707963267948966))
                continue;
            ++rowCounts[row];
            carriedOver += held != walls[w].doors;
            if (held.size() + walls[v].doors.size() == 2)
                records.push_back({held[0], {walls[v].doors[0]}});
            held = walls[v].doors;
        }
    }
    return records;
}

} // namespace

TEST(DoorToDoor, AgreesWithItsTable) {
    std::mt19937 random(7);
    const auto below = [&](int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); };
    int rowCounts[4] = {};
    int carriedOver = 0;
    for (int site = 0; site < 2000; ++site) {
        UdDbDocument document;
        std::vector<Wall> walls(4 + below(6));
        for (Wall& wall : walls) {
            // Ends on a few nodes, some of them a little off; units of one and of thousands of millimetres.
            const double unit = below(3) ? 3000.0 : 1.0;
            const int jitter = below(2) ? 0 : 60;
            for (auto& end : wall.ends)
                for (double& coordinate : end)
                    coordinate = unit * below(3) + (jitter ? below(2 * jitter) - jitter : 0);
            NUXWallParams params;
            params.start = {wall.ends[0][0], wall.ends[0][1]};
            params.end = {wall.ends[1][0], wall.ends[1][1]};
            for (int door = below(8) ? below(2) + below(2) * below(2) : 3; door > 0; --door) {
                const auto& object = document.append(std::make_unique<NUXDoorObject>(NUXDoorParams()));
                params.doors[-object.Handle().GetID()].doorId =
                    UdDbObjectId(const_cast<NUXDoorObject*>(&object));
                wall.doors.insert(wall.doors.begin(), object.Handle().GetID());
            }
            if (below(4) == 0) {
                params.doors[1e9].flag = true;
                params.doors[1e9].doorId =
                    UdDbObjectId(&document.append(std::make_unique<NUXDoorObject>(NUXDoorParams())));
            }
            document.append(std::make_unique<NUXWallObject>(params));
        }
        NuxStandardCheckRule rule;
        rule.name = "Position_DoorToDoor";
        Records records;
        for (const auto& record : NUXRelElementTypePositionRule().check(document.GetModelSpace(), rule))
            records.emplace_back(record.handle, record.relatedHandles);
        ASSERT_EQ(records, expectedRecords(walls, rowCounts, carriedOver)) << "site " << site;
    }
    for (const int count : rowCounts)
        EXPECT_GT(count, 100) << "every row of the table must be met";
    EXPECT_GT(carriedOver, 100);
}
