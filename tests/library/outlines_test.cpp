#include "elements/NUXDoorObject.h"
#include "geometry/CExtrudedBody.h"
#include "site/bodies.h"
#include "site/outlines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <sstream>

using namespace firestandard;

namespace {

/// "low to high", in thousandths; "none" for no body.
std::string boxOf(const hrx::CBody* body) {
    if (!body)
        return "none";
    const hrx::CExtents3 box = body->GetExtents();
    std::ostringstream text;
    const auto rounded = [](double value) { return std::round(value * 1e3) / 1e3 + 0.0; };
    for (const hrx::CVec3<double>& corner : {box.low, box.high})
        text << rounded(corner.x) << ' ' << rounded(corner.y) << ' ' << rounded(corner.z) << ' ';
    return text.str();
}

NUXBaseParams shaped(NUXShapeKind kind, double size = 1.0) {
    NUXBaseParams params;
    params.shapeKind = kind;
    params.elevation = 2000.0;
    params.rectCentre = {10.0, 20.0, 5.0};
    params.rectLength = 4.0;
    params.rectDepth = 2.0 * size;
    params.rectAngle = 90.0;
    params.circleCentre = {0.0, 0.0, 7.0};
    params.circleRadius = 500.0 * size;
    if (size > 0.0)
        params.polyline = {{0.0, 0.0, 0.0}, {100.0, 0.0, 0.0}, {100.0, 50.0, 0.0}, {0.0, 50.0, 0.0}};
    return params;
}

NUXBaseObject polylineOf(const std::vector<hrx::PolyPt2d>& points) {
    NUXBaseParams params;
    params.polyline = points;
    return NUXBaseObject(L"X", params);
}

} // namespace

TEST(RectangleOutline, StartsAtTheLowerLeftCornerOfItsOwnFrame) {
    std::vector<hrx::CVec2<double>> corners{{7.0, 7.0}};
    getRectParamCorners(NUXRectParam({0.0, 0.0}, 4.0, 2.0, 90.0), corners);
    const hrx::CVec2<double> expected[] = {{7.0, 7.0}, {1.0, -2.0}, {1.0, 2.0}, {-1.0, 2.0}, {-1.0, -2.0}};
    ASSERT_EQ(corners.size(), 5u);
    for (std::size_t i = 0; i < corners.size(); ++i)
        EXPECT_LT(std::hypot(corners[i].x - expected[i].x, corners[i].y - expected[i].y), 1e-12);
    for (const double length : {4.0, -4.0})
        EXPECT_EQ(buildRectParamPolygon(NUXRectParam({0.0, 0.0}, length, 2.0, 0.0))->GetLoop(0)->ClockSign(),
                  1);
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
        const OutlinePtr plain(new hrx::CPolygon(expected));
        normaliseOrientation(*plain);
        const OutlinePtr outline = buildPolylinePolygon(polylineOf(points));
        const auto& edges = outline->GetLoop(0)->edges();
        ASSERT_EQ(edges.size(), expected.size()) << count;
        for (std::size_t i = 0; i < edges.size(); ++i)
            ASSERT_TRUE(edges[i].start == plain->GetLoop(0)->edges()[i].start) << count << ": " << i;
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
        EXPECT_EQ(buildPolylinePolygon(polylineOf(points))->GetLoop(0)->edges().size(), row.edges)
            << row.what;
    }
    EXPECT_EQ(buildPolylinePolygon(polylineOf({})), nullptr);
    const OutlinePtr withoutLoop(new hrx::CPolygon());
    normaliseOrientation(*withoutLoop);
    EXPECT_EQ(withoutLoop->GetLoop(0), nullptr);
    EXPECT_EQ(
        buildPolylinePolygon(polylineOf(Points(square.rbegin(), square.rend())))->GetLoop(0)->ClockSign(), 1);
}

TEST(ElementBody, FollowsTheShapeKind) {
    const struct {
        NUXBaseObject element;
        const char* box;
    } rows[] = {
        {NUXBaseObject(L"X", shaped(kRectangleShape)), "9 18 0 11 22 3000 "},
        {NUXBaseObject(L"X", shaped(kCircleShape)), "-500 -500 7 500 500 3007 "},
        {NUXBaseObject(L"X", shaped(kPolylineShape)), "0 0 2000 100 50 5000 "},
        {NUXBaseObject(L"X", shaped(kRectangleShape, 0.0)), "none"},
        {NUXBaseObject(L"X", shaped(kCircleShape, 0.0)), "none"},
        {NUXBaseObject(L"X", shaped(kPolylineShape, 0.0)), "none"},
        {NUXBaseObject(L"X", shaped(kArcShape)), "none"},
        {NUXBaseObject(L"NUX_EDO_TYPE_DOOR", shaped(kNoShape)), "none"},
    };
    BodyPtr body;
    for (const auto& row : rows) {
        body = buildRectParamBody(NUXRectParam({0.0, 0.0}, 1.0, 1.0, 0.0), 1.0);
        EXPECT_EQ(buildElementBody(&row.element, 3000.0, body), row.box != std::string("none")) << row.box;
        EXPECT_EQ(boxOf(body.get()), row.box);
    }
    NUXDoorParams door;
    door.position = {0.0, 0.0, 900.0};
    door.plankWidth = 1000;
    door.postSectionWidth = 100;
    door.postSectionHeight = 60;
    const NUXDoorObject doorObject(door);
    EXPECT_TRUE(buildElementBody(&doorObject, 3000.0, body));
    EXPECT_EQ(boxOf(body.get()), "-600 -30 0 600 30 1 ") << "a door is always 1.0 high";
    const NUXElementObject withoutFootprint(L"X");
    EXPECT_FALSE(buildElementBody(&withoutFootprint, 1000.0, body));
    EXPECT_FALSE(buildElementBody(nullptr, 1000.0, body));
}

TEST(MinBodyDistance, IsTheLeastOverAllPairs) {
    const auto squaresAt = [](const std::vector<double>& places) {
        BodyList bodies;
        for (const double x : places)
            bodies.push_back(buildRectParamBody(NUXRectParam({x, 0.0}, 10.0, 10.0, 0.0), 1.0));
        return bodies;
    };
    EXPECT_EQ(minBodyDistance(squaresAt({0.0, 500.0}), squaresAt({100.0, 450.0, 900.0})), 40.0);
    EXPECT_EQ(minBodyDistance(squaresAt({0.0, 500.0}), squaresAt({1000.0, 5.0, 520.0})), 0.0);
    EXPECT_EQ(minBodyDistance({}, squaresAt({1.0})), kNoBodyDistance);
    EXPECT_EQ(minBodyDistance(squaresAt({1.0}), {}), kNoBodyDistance);
}
