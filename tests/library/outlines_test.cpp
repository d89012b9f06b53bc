#include "elements/NUX3dsObject.h"
#include "elements/NUXDoorObject.h"
#include "elements/NUXPrefabHouseObject.h"
#include "elements/NUXYardOBJObject.h"
#include "geometry/CExtrudedBody.h"
#include "site/element_body.h"
#include "site/house_footprint.h"
#include "site/min_body_distance.h"
#include "site/polyline_outline.h"
#include "site/rectangle_outline.h"
#include "site/yard_or_3ds_body.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace {

void expectBox(const hrx::CBody& body, const hrx::CVec3<double>& low, const hrx::CVec3<double>& high,
               const char* what) {
    const hrx::CExtents3 extents = body.GetExtents();
    EXPECT_NEAR(extents.low.x, low.x, 1e-6) << what;
    EXPECT_NEAR(extents.low.y, low.y, 1e-6) << what;
    EXPECT_NEAR(extents.low.z, low.z, 1e-6) << what;
    EXPECT_NEAR(extents.high.x, high.x, 1e-6) << what;
    EXPECT_NEAR(extents.high.y, high.y, 1e-6) << what;
    EXPECT_NEAR(extents.high.z, high.z, 1e-6) << what;
}

NUXBaseParams shaped(NUXShapeKind kind) {
    NUXBaseParams params;
    params.shapeKind = kind;
    params.elevation = 2000.0;
    params.rectCentre = {10.0, 20.0, 5.0};
    params.rectLength = 4.0;
    params.rectDepth = 2.0;
    params.rectAngle = 90.0;
    params.circleCentre = {0.0, 0.0, 7.0};
    params.circleRadius = 500.0;
    params.polyline = {{0.0, 0.0, 0.0}, {100.0, 0.0, 0.0}, {100.0, 50.0, 0.0}, {0.0, 50.0, 0.0}};
    return params;
}

class Polyline : public NUXBaseObject {
public:
    explicit Polyline(const std::vector<hrx::PolyPt2d>& points) : NUXBaseObject(L"X", paramsOf(points)) {}

private:
    static NUXBaseParams paramsOf(const std::vector<hrx::PolyPt2d>& points) {
        NUXBaseParams params;
        params.polyline = points;
        return params;
    }
};

} // namespace

TEST(HouseFootprint, ReachesAroundGalleryAndStairs) {
    struct Row {
        int stairs;
        int isFB;
        double angle; ///< goes into sine and cosine as it is
        double length;
        double depth;
        hrx::CVec2<double> centre;
    };
    const double s = std::sin(30.0);
    const double c = std::cos(30.0);
    const Row rows[] = {
        {0, 0, 0.0, 7600.0, 3500.0, {-800.0, -250.0}},
        {1, 0, 0.0, 7600.0, 3500.0, {800.0, -250.0}},
        {2, 1, 0.0, 6000.0, 3500.0, {0.0, 250.0}},
        {3, 0, 0.0, 9200.0, 3500.0, {0.0, -250.0}},
        {3, -1, 0.0, 9200.0, 3500.0, {0.0, 250.0}},
        {4, 0, 0.0, 6000.0, 5100.0, {0.0, -1050.0}},
        {4, 1, 0.0, 6000.0, 5100.0, {0.0, -1050.0}},
        {1, 0, 30.0, 7600.0, 3500.0, {800.0 * c - 250.0 * s, 800.0 * s - 250.0 * c}},
        {4, 0, 30.0, 6000.0, 5100.0, {-1050.0 * s, -1050.0 * c}},
        {5, 0, 30.0, 1.0, 2.0, {3.0 - 250.0 * s, 4.0 - 250.0 * c}},
        {-1, 1, 30.0, 1.0, 2.0, {3.0 + 250.0 * s, 4.0 + 250.0 * c}},
    };
    for (const Row& row : rows) {
        NUXPrefabHouseParams params;
        params.rectLength = 6000.0;
        params.rectDepth = 3000.0;
        params.rectAngle = row.angle;
        params.stairPosition = static_cast<StairPt>(row.stairs);
        params.isFB = row.isFB;
        double length = 1.0;
        double depth = 2.0;
        hrx::CVec2<double> centre{3.0, 4.0};
        getHouseRectWithStair(NUXPrefabHouseObject(params), length, depth, centre);
        EXPECT_DOUBLE_EQ(length, row.length) << row.stairs;
        EXPECT_DOUBLE_EQ(depth, row.depth) << row.stairs;
        EXPECT_DOUBLE_EQ(centre.x, row.centre.x) << row.stairs << ' ' << row.angle;
        EXPECT_DOUBLE_EQ(centre.y, row.centre.y) << row.stairs << ' ' << row.angle;
    }
}

TEST(RectangleOutline, StartsAtTheLowerLeftCornerOfItsOwnFrame) {
    std::vector<hrx::CVec2<double>> corners{{7.0, 7.0}};
    getRectParamCorners(NUXRectParam({0.0, 0.0}, 4.0, 2.0, 90.0), corners);
    const hrx::CVec2<double> expected[] = {{7.0, 7.0}, {1.0, -2.0}, {1.0, 2.0}, {-1.0, 2.0}, {-1.0, -2.0}};
    ASSERT_EQ(corners.size(), 5u);
    for (std::size_t i = 0; i < corners.size(); ++i) {
        EXPECT_NEAR(corners[i].x, expected[i].x, 1e-12);
        EXPECT_NEAR(corners[i].y, expected[i].y, 1e-12);
    }
    EXPECT_EQ(buildRectParamPolygon(NUXRectParam({0.0, 0.0}, -4.0, 2.0, 0.0))->GetLoop(0)->ClockSign(), 1);
}

// Points that lie upon each other or a hair apart, in short and long polylines and in one that is not finite,
// against the definition.
TEST(PolylineOutline, KeepsTheSamePointsHoweverManyThereAre) {
    const double hair = 2e-16;
    const double places[] = {0.0, hair, -hair, 1.0, 1.0 + hair, 3.0, 7e6};
    std::mt19937 random(1);
    const auto anyOf = [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
    for (const int count : {60, 70, 500, 501}) {
        std::vector<hrx::PolyPt2d> points;
        std::vector<hrx::PolyPt2d> expected;
        for (int i = 0; i < count; ++i) {
            hrx::PolyPt2d point{places[anyOf(7)] + anyOf(3), places[anyOf(7)], 0.0004 * anyOf(9)};
            if (count == 501 && i / 10 == 25)
                point.bulge = std::numeric_limits<double>::quiet_NaN();
            points.push_back(point);
            const bool isRepeated =
                std::any_of(expected.begin(), expected.end(), [&](const hrx::PolyPt2d& kept) {
                    return std::pow(kept.x - point.x, 2) + std::pow(kept.y - point.y, 2) <=
                               std::pow(2.0, -104) &&
                           kept.bulge - point.bulge < 0.001;
                });
            if (!isRepeated)
                expected.push_back(point);
        }
        const OutlinePtr outline = buildPolylinePolygon(Polyline(points));
        const auto& edges = outline->GetLoop(0)->edges();
        ASSERT_EQ(edges.size(), expected.size()) << count;
        // The outline may run the other way round.
        const bool isReversed = edges.front().end.x != expected[1].x || edges.front().end.y != expected[1].y;
        for (std::size_t i = 0; i < edges.size(); ++i) {
            const auto& corner = isReversed ? edges[edges.size() - 1 - i].end : edges[i].start;
            ASSERT_TRUE(corner.x == expected[i].x && corner.y == expected[i].y) << count << ": " << i;
        }
    }
}

TEST(PolylineOutline, DropsRepeatedPointsByAOneSidedTest) {
    using Points = std::vector<hrx::PolyPt2d>;
    const Points square{{0.0, 0.0, 0.0}, {9.0, 0.0, 0.0}, {9.0, 9.0, 0.0}, {0.0, 9.0, 0.0}};
    struct Row {
        const char* what;
        hrx::PolyPt2d added;
        std::size_t edges;
    };
    const Row rows[] = {
        {"the first point again", {0.0, 0.0, 0.0}, 4},
        {"far above it in the third component", {0.0, 0.0, 5.0}, 4},
        {"just below it", {0.0, 0.0, -0.0009}, 4},
        {"below it by all but the tolerance", {0.0, 0.0, -0.0009999}, 4},
        {"below it by the tolerance", {0.0, 0.0, -0.001}, 5},
        {"apart by the double epsilon", {std::numeric_limits<double>::epsilon(), 0.0, 0.0}, 4},
        {"apart by a little more", {1.0001 * std::numeric_limits<double>::epsilon(), 0.0, 0.0}, 5},
    };
    for (const Row& row : rows) {
        Points points = square;
        points.push_back(row.added);
        EXPECT_EQ(buildPolylinePolygon(Polyline(points))->GetLoop(0)->edges().size(), row.edges) << row.what;
    }
    EXPECT_EQ(buildPolylinePolygon(Polyline({})), nullptr);
    const OutlinePtr withoutLoop(new hrx::CPolygon());
    normaliseOrientation(*withoutLoop);
    EXPECT_EQ(withoutLoop->GetLoop(0), nullptr);
    EXPECT_EQ(buildPolylinePolygon(Polyline(Points(square.rbegin(), square.rend())))->GetLoop(0)->ClockSign(),
              1);
}

TEST(ElementBody, FollowsTheShapeKind) {
    NUXDoorParams door;
    door.position = {0.0, 0.0, 900.0};
    door.plankWidth = 1000;
    door.postSectionWidth = 100;
    door.postSectionHeight = 60;
    const NUXBaseObject rectangle(L"X", shaped(kRectangleShape));
    const NUXBaseObject circle(L"X", shaped(kCircleShape));
    const NUXBaseObject polyline(L"X", shaped(kPolylineShape));
    struct Row {
        const char* what;
        const NUXElementObject& element;
        hrx::CVec3<double> low;
        hrx::CVec3<double> high;
    };
    const Row rows[] = {
        {"a rectangle stands on the ground", rectangle, {9.0, 18.0, 0.0}, {11.0, 22.0, 3000.0}},
        {"a circle on its centre", circle, {-500.0, -500.0, 7.0}, {500.0, 500.0, 3007.0}},
        {"a polyline on the element's elevation", polyline, {0.0, 0.0, 2000.0}, {100.0, 50.0, 5000.0}},
        {"a door is always 1.0 high", NUXDoorObject(door), {-600.0, -30.0, 0.0}, {600.0, 30.0, 1.0}},
    };
    for (const Row& row : rows) {
        BodyPtr body;
        ASSERT_TRUE(buildElementBody(&row.element, 3000.0, body)) << row.what;
        expectBox(*body, row.low, row.high, row.what);
    }
}

TEST(ElementBody, IsNoneWhereItCannotBeMeasured) {
    NUXBaseParams flat = shaped(kRectangleShape);
    flat.rectDepth = 0.0;
    NUXBaseParams point = shaped(kCircleShape);
    point.circleRadius = 0.0;
    NUXBaseParams noPoints = shaped(kPolylineShape);
    noPoints.polyline.clear();
    const NUXBaseObject elements[] = {NUXBaseObject(L"X", flat), NUXBaseObject(L"X", point),
                                      NUXBaseObject(L"X", noPoints), NUXBaseObject(L"X", shaped(kArcShape)),
                                      NUXBaseObject(L"NUX_EDO_TYPE_DOOR", shaped(kNoShape))};
    for (const NUXBaseObject& element : elements) {
        BodyPtr body = buildRectParamBody(NUXRectParam({0.0, 0.0}, 1.0, 1.0, 0.0), 1.0);
        EXPECT_FALSE(buildElementBody(&element, 1000.0, body)) << element.m_shapeKind;
        EXPECT_EQ(body, nullptr) << element.m_shapeKind;
    }
    const NUXElementObject withoutFootprint(L"X");
    BodyPtr body;
    EXPECT_FALSE(buildElementBody(&withoutFootprint, 1000.0, body));
    EXPECT_FALSE(buildElementBody(nullptr, 1000.0, body));
}

TEST(YardOr3dsBody, PrefersTheModel) {
    NUXYardOBJParams yardParams;
    yardParams.rectCentre = {0.0, 0.0, 0.0};
    yardParams.rectLength = 200.0;
    yardParams.rectDepth = 100.0;
    yardParams.paramAnswer = false;
    NUX3dsParams modelParams;
    modelParams.position = {1000.0, 0.0, 300.0};
    modelParams.length = 40.0;
    modelParams.depth = 20.0;
    NUXYardOBJObject yard(yardParams);
    BodyPtr body;
    buildYardOr3dsBody(&yard, body);
    ASSERT_NE(body, nullptr);
    expectBox(*body, {-100.0, -50.0, 0.0}, {100.0, 50.0, 1.0}, "yard");

    yard.attachView(std::make_unique<NUX3dsObject>(L"KIND", modelParams));
    buildYardOr3dsBody(&yard, body);
    expectBox(*body, {980.0, -10.0, 0.0}, {1020.0, 10.0, 1.0}, "both");

    const hrx::CBody* const before = body.get();
    const NUX3dsObject sizeless(L"KIND", NUX3dsParams());
    buildYardOr3dsBody(&sizeless, body);
    EXPECT_EQ(body.get(), before) << "an outline that fails leaves the output alone";
}

TEST(MinBodyDistance, IsTheLeastOverAllPairsAndConsumesBothLists) {
    class Counted : public hrx::CExtrudedBody {
    public:
        Counted(double x, int& alive)
            : CExtrudedBody(hrx::CCoord3<double>(), 1.0,
                            buildRectParamPolygon(NUXRectParam({x, 0.0}, 10.0, 10.0, 0.0)).release(), true),
              m_alive(alive) {
            ++m_alive;
        }
        ~Counted() override { --m_alive; }

    private:
        int& m_alive;
    };
    struct Row {
        std::vector<double> first;
        std::vector<double> second;
        double distance;
    };
    const Row rows[] = {{{0.0, 500.0}, {100.0, 450.0, 900.0}, 40.0},
                        {{0.0, 500.0}, {1000.0, 5.0, 520.0}, 0.0},
                        {{}, {1.0}, kNoBodyDistance},
                        {{1.0}, {}, kNoBodyDistance}};
    int alive = 0;
    for (const Row& row : rows) {
        BodyList first;
        BodyList second;
        for (const double x : row.first)
            first.push_back(std::make_unique<Counted>(x, alive));
        for (const double x : row.second)
            second.push_back(std::make_unique<Counted>(x, alive));
        EXPECT_EQ(minBodyDistance(std::move(first), std::move(second)), row.distance);
        EXPECT_EQ(alive, 0);
    }
}
