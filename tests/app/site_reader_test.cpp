#include "InputError.h"
#include "elements/NUX3dsObject.h"
#include "elements/NUXCloseHouseObject.h"
#include "elements/NUXDoorObject.h"
#include "elements/NUXOpenHouseObject.h"
#include "elements/NUXPosterObject.h"
#include "elements/NUXPrefabHouseObject.h"
#include "elements/NUXRoadObject.h"
#include "elements/NUXServiceCableObject.h"
#include "elements/NUXTowerCraneObject.h"
#include "elements/NUXWallObject.h"
#include "elements/NUXWastePoolObject.h"
#include "elements/NUXYardOBJObject.h"
#include "site_file/site_reader.h"

#include <gtest/gtest.h>

#include <ctime>

namespace {

Site siteOf(const std::string& objects) {
    return parseSite("{\"objects\": [" + objects + "]}", "test");
}

/// The first object of the site, viewed as Class.
template <class Class> Class* first(const Site& site) {
    const UdDbObjects& objects = site.document->GetModelSpace()->objects();
    return objects.empty() ? nullptr : Class::Cast(objects.front().get());
}

template <class T> std::vector<double> coordinates(const T& point) {
    return {point.x, point.y};
}
std::vector<double> coordinates3(const hrx::CVec3<double>& point) {
    return {point.x, point.y, point.z};
}
using Numbers = std::vector<double>;

TEST(SiteReader, TakesTheWholePrefabHouse) {
    const Site site = siteOf(R"({"class": "prefabHouse", "handle": 7, "name": "宿舍 3", "center": [1, 2, 3],
        "length": 4, "depth": 5, "angle": 6, "elevation": 8, "use": "dormitory", "floors": 9,
        "stairs": "alongSide", "gallerySide": "rear", "floorDepth": 10, "partitions": [11, [12, 13]]})");
    const auto* house = first<NUXPrefabHouseObject>(site);
    ASSERT_TRUE(house);
    EXPECT_EQ(coordinates3(house->getPtRectCenter()), (Numbers{1, 2, 3}));
    EXPECT_EQ((Numbers{house->getRectWidthL(), house->getRectHigh(), house->getRectAngle(),
                       house->getElevation(), house->getDepth()}),
              (Numbers{4, 5, 6, 8, 10}));
    EXPECT_EQ((std::vector<int>{house->houseUse(), house->getFloorCount(), house->getStairPosition(),
                                house->getIsFB(), int(house->m_shapeKind)}),
              (std::vector<int>{1, 9, 4, 1, 3}));
    std::vector<hrx::CVec2<double>> partitions;
    house->getEveryWidth(partitions);
    ASSERT_EQ(partitions.size(), 2u);
    EXPECT_EQ(coordinates(partitions[0]), (Numbers{11, 0}));
    EXPECT_EQ(coordinates(partitions[1]), (Numbers{12, 13}));
    EXPECT_EQ(house->Handle().GetID(), 7);
    EXPECT_EQ(site.labels.at(7).name, "宿舍 3");
    EXPECT_EQ(site.labels.at(7).className, "prefabHouse");
}

TEST(SiteReader, DerivesWhatIsNotGiven) {
    const Site houses = siteOf(
        R"({"class": "prefabHouse", "handle": 1, "center": [0, 0], "length": 9000, "depth": 6000, "use": 77})");
    EXPECT_EQ(first<NUXPrefabHouseObject>(houses)->getDepth(), 6000.0);
    EXPECT_EQ(first<NUXPrefabHouseObject>(houses)->getStairPosition(), kNoStair);
    EXPECT_EQ(first<NUXPrefabHouseObject>(houses)->houseUse(), 77);

    const Site pools = siteOf(
        R"({"class": "wastePool", "handle": 1, "use": "household", "circle": {"center": [5, 6, 7], "radius": 2}})");
    const auto* pool = first<NUXWastePoolObject>(pools);
    EXPECT_EQ(pool->m_shapeKind, kCircleShape);
    EXPECT_EQ(coordinates3(pool->getPtCircleRadir()), (Numbers{7, 6, 7}));
    EXPECT_EQ(pool->getObjectUse(), 1);

    const Site cables = siteOf(R"({"class": "serviceCable", "handle": 1, "start": [0, 0], "end": [8, 0],
        "through": [4, 4], "startElevationMetres": 6.5})");
    const auto* cable = first<NUXServiceCableObject>(cables);
    EXPECT_EQ(cable->m_shapeKind, kArcShape);
    EXPECT_FALSE(cable->getIsStraight());
    EXPECT_EQ(cable->getServiceCableEndElevation(), 6.5);

    const Site boxes =
        siteOf(R"({"class": "extinguisherBox", "handle": 1, "position": [1, 2], "angle": 90})");
    double length = 0.0;
    double depth = 0.0;
    first<NUX3dsObject>(boxes)->calculateWidthAndHeight(length, depth);
    EXPECT_EQ((Numbers{length, depth, first<NUX3dsObject>(boxes)->getAngle()}), (Numbers{600, 250, 90}));
    EXPECT_EQ(first<NUX3dsObject>(boxes)->getModelKind(), L"NUX_EDO_TYPE_FIREEXTINGUISHERBOX");
}

TEST(SiteReader, TakesRoadsWithTheirOutlines) {
    const std::string road =
        R"({"class": "road", "handle": 1, "fireRoad": true, "start": [0, 0], "end": [9000, 0], "width": 3999)";
    const Site straight = siteOf(road + "}");
    EXPECT_EQ(first<NUXRoadObject>(straight)->m_shapeKind, kStraightShape);
    EXPECT_TRUE(first<NUXRoadObject>(straight)->getIsFireRoad());
    EXPECT_EQ(first<NUXRoadObject>(straight)->getWidth(), 3999);
    EXPECT_TRUE(first<NUXRoadObject>(straight)->getRoadPoly());

    const Site arc = siteOf(road + R"(, "through": [4500, 4500]})");
    EXPECT_EQ(first<NUXRoadObject>(arc)->m_shapeKind, kArcShape);
    EXPECT_EQ(coordinates(first<NUXRoadObject>(arc)->getOriginalRefPt()), (Numbers{4500, 4500}));

    EXPECT_FALSE(first<NUXRoadObject>(siteOf(road + R"(, "outline": "none"})"))->getRoadPoly());
    const Site given = siteOf(road + R"(, "outline": [[0, 0], [0, 500], [500, 0, 1]]})");
    ASSERT_TRUE(first<NUXRoadObject>(given)->getRoadPoly());
    EXPECT_EQ(first<NUXRoadObject>(given)->getRoadPoly()->GetLoop(0)->ClockSign(), 1);
}

TEST(SiteReader, LinksWallsToTheirDoors) {
    const Site site = siteOf(R"({"class": "wall", "handle": 1, "start": [0, 1], "end": [9000, 2], "doors": [
            {"distance": 5000, "door": 3, "width": 1, "height": 2, "elevation": 3, "leafAngle": 4, "offset": 5},
            {"distance": 1000, "door": null, "key": 9000}, {"distance": 2000, "door": 2, "flagged": true}]},
        {"class": "door", "handle": 2, "position": [2000, 0], "refusesToOpen": true},
        {"class": "door", "handle": 3, "position": [5000, 0], "leafWidth": 1200, "postWidth": 60, "postDepth": 70,
         "angle": 15})");
    const auto* wall = first<NUXWallObject>(site);
    EXPECT_EQ(coordinates(wall->getEndPosition()), (Numbers{9000, 2}));
    std::vector<std::pair<double, long long>> doors;
    for (const auto& [key, entry] : wall->getAssociationDoor())
        doors.emplace_back(key, entry.doorId.IsValid() ? entry.doorId.Handle().GetID() : 0);
    EXPECT_EQ(doors, (std::vector<std::pair<double, long long>>{{2000, 2}, {5000, 3}, {9000, 0}}));
    EXPECT_TRUE(wall->getAssociationDoor().at(2000).flag);
    const DoorData& entry = wall->getAssociationDoor().at(5000);
    EXPECT_EQ(
        (Numbers{entry.distance, entry.width, entry.height, entry.elevation, entry.leafAngle, entry.offset}),
        (Numbers{5000, 1, 2, 3, 4, 5}));
    const auto* door = NUXDoorObject::Cast(site.document->GetItem(3, UdDb::kForRead));
    EXPECT_EQ((Numbers{double(door->getPlankWidth()), double(door->getDoorPostSectionWidth()),
                       double(door->getDoorPostSectionHeight()), door->getAngle()}),
              (Numbers{1200, 60, 70, 15}));
    EXPECT_FALSE(site.document->GetItem(2, UdDb::kForRead));
}

TEST(SiteReader, TakesWhatIsOdd) {
    const Site shed = siteOf(R"({"class": "openShed", "handle": -5, "identifier": "NUX_ELEMENT_TYPE_MIXSITE",
        "use": -1, "shapeKind": 4000000000, "center": [1, 2], "length": 3, "depth": 4, "polyline": [[5, 6, 7]],
        "extents": {"low": [1, 2, 3], "high": [4, 5, 6]},
        "secondView": {"class": "sizelessModel", "identifier": "NUX_EDO_TYPE_BENGCHE", "position": [8, 9, 10],
                       "extents": {"low": [7, 7, 7], "high": [8, 8, 8]}}})");
    const auto* element = first<NUXOpenHouseObject>(shed);
    EXPECT_EQ(element->getElementType(), L"NUX_ELEMENT_TYPE_MIXSITE");
    EXPECT_EQ(element->openHouseUse(), -1);
    EXPECT_EQ(element->m_shapeKind, 4000000000u);
    std::vector<hrx::PolyPt2d> points;
    element->GetPolyPts(points);
    ASSERT_EQ(points.size(), 1u);
    EXPECT_EQ(points[0].bulge, 7.0);
    hrx::CVec3<double> low;
    hrx::CVec3<double> high;
    element->GetGeomExtents(low, high);
    EXPECT_EQ(coordinates3(low), (Numbers{1, 2, 3}));
    const auto* view = NUX3dsBaseObject::Cast(element);
    ASSERT_TRUE(view);
    EXPECT_FALSE(NUX3dsObject::Cast(element));
    EXPECT_EQ(coordinates3(view->GetPosition()), (Numbers{8, 9, 10}));
    EXPECT_EQ(view->Handle().GetID(), -5);
    view->GetGeomExtents(low, high);
    EXPECT_EQ(coordinates3(high), (Numbers{8, 8, 8}));

    const Site mesh = siteOf(R"({"class": "yardMesh", "handle": 1, "center": [0, 0], "length": 1, "depth": 1,
        "parametersKnown": false})");
    hrx::CVec2<double> centre;
    double unused = 0.0;
    EXPECT_FALSE(first<NUXYardOBJObject>(mesh)->calculateParam(centre, unused, unused, unused));

    const Site use =
        siteOf(R"({"class": "closedHouse", "handle": 1, "center": [0, 0], "length": 1, "depth": 1,
        "use": "厕所 "})");
    EXPECT_EQ(first<NUXCloseHouseObject>(use)->closeHouseUse(), L"厕所 ");

    const Site poster =
        siteOf(R"({"class": "poster", "handle": 1, "start": [1, 2], "end": [3, 4], "height": 5,
        "elevationMetres": 6, "drawType": "sheet"})");
    EXPECT_EQ(first<NUXPosterObject>(poster)->getDrawType(), 2);
    EXPECT_EQ(first<NUXPosterObject>(poster)->getElevation(), 6.0);
    EXPECT_EQ(coordinates(first<NUXPosterObject>(poster)->getSecondPoint()), (Numbers{3, 4}));

    const Site crane = siteOf(R"({"class": "towerCrane", "handle": 1, "position": [0, 0], "jibHeight": 30000,
        "frontJibLength": 50000})");
    EXPECT_TRUE(first<NUXTowerCraneObject>(crane)->getTowerQianBiBody());
    EXPECT_FALSE(first<NUXTowerCraneObject>(crane)->getTowerHouBiBody());

    const Site drawing = siteOf(R"({"class": "drawing", "handle": 9223372036854775807})");
    EXPECT_FALSE(first<NUXElementObject>(drawing));
    EXPECT_TRUE(drawing.document->hasHandle(9223372036854775807));
}

struct Refusal {
    std::string what;
    std::string text;
    std::string message;
};

std::string messageOf(const std::string& text) {
    try {
        parseSite(text, "site.json");
    } catch (const InputError& error) {
        return error.what();
    }
    return "accepted";
}

TEST(SiteReader, RefusesTextThatIsNoJson) {
    const std::vector<Refusal> refusals = {
        {"empty", "",
         "site.json:1:1: expected JSON in UTF-8: unexpected end of input; expected '[', '{', or a literal"},
        {"truncated", "{\"objects\":\n  [",
         "site.json:2:4: expected JSON in UTF-8: unexpected end of input; expected '[', '{', or a literal"},
        {"trailing", "{\"objects\": []}\n}",
         "site.json:2:1: expected JSON in UTF-8: unexpected '}'; expected end of input"},
        {"infinite", "{\"objects\":\n[1e999]}", "site.json:2:7: expected a finite number"},
        {"duplicate key", "{\"食堂\": 1, \"食堂\": 1}",
         "site.json:1:14: the key \"食堂\" occurs twice in its object"},
        {"no UTF-8", "{\"name\": \"\xff\"}",
         "site.json:1:11: expected JSON in UTF-8: invalid string: ill-formed UTF-8 byte"},
        {"not a number", "{\"objects\": [NaN]}", "site.json:1:14: expected JSON in UTF-8: invalid literal"},
        {"deep", std::string(2000000, '['), "site.json:1:33: nested deeper than 32 levels"},
    };
    for (const Refusal& refusal : refusals)
        EXPECT_EQ(messageOf(refusal.text).substr(0, 150), refusal.message) << refusal.what;
}

TEST(SiteReader, RefusesWhatIsNoSite) {
    const std::string shed =
        R"({"class": "openShed", "handle": 1, "use": 0, "center": [0, 0], "length": 1, "depth": 1)";
    const std::string wall = R"({"class": "wall", "handle": 1, "start": [0, 0], "end": [1, 0], "doors": [)";
    const std::vector<Refusal> refusals = {
        {"class", R"({"class": "openshed", "handle": 1})",
         R"(/objects/0/class: unknown class "openshed"; did you mean "openShed"?)"},
        {"key", shed + R"(, "agnle": 5})", R"(/objects/0: unknown key "agnle"; did you mean "angle"?)"},
        {"key of another class", shed + R"(, "jibInclination": 5})",
         R"(/objects/0: unknown key "jibInclination")"},
        {"missing", R"({"class": "drawing"})",
         R"(/objects/0: expected the key "handle" (the number by which reports name the object; each object has its own))"},
        {"type", shed + R"(, "angle": "0"})", "/objects/0/angle: expected a number, found a string"},
        {"point", R"({"class": "road", "handle": 1, "start": [0, 0, 0], "end": [1, 0]})",
         "/objects/0/start: expected a point [x, y], found a list of 3"},
        {"name", R"({"class": "openShed", "handle": 1, "use": "hotwork"})",
         R"(/objects/0/use: expected one of "general", "hotWork", "formwork", "woodworking", "mechanical", or an integer code; did you mean "hotWork"?)"},
        {"fraction", R"({"class": "road", "handle": 1, "start": [0, 0], "end": [1, 0], "width": 1.5})",
         "/objects/0/width: expected an integer, found a fraction"},
        {"int too large",
         R"({"class": "road", "handle": 1, "start": [0, 0], "end": [1, 0], "width": 2147483648})",
         "/objects/0/width: expected an integer from 0 to 2147483647"},
        {"handle 0", R"({"class": "drawing", "handle": 0})",
         "/objects/0/handle: expected a handle other than 0"},
        {"large handle", R"({"class": "drawing", "handle": 9223372036854775808})",
         "/objects/0/handle: expected an integer from -9223372036854775808 to 9223372036854775807"},
        {"second handle", R"({"class": "drawing", "handle": 4}, {"class": "drawing", "handle": 4})",
         "/objects/1/handle: expected a handle of its own, found 4 once more"},
        {"no footprint", R"({"class": "woodYard", "handle": 1, "center": [0, 0], "length": 1})",
         R"(/objects/0: expected a footprint: "center", "length" and "depth", or "circle", or "polyline")"},
        {"two footprints", shed + R"(, "polyline": []})",
         R"(/objects/0: expected "shapeKind" to say which of the footprints counts)"},
        {"unknown door", wall + R"({"distance": 0, "door": 8}]})",
         "/objects/0/doors/0/door: expected the handle of a door, found 8"},
        {"no door", wall + R"({"distance": 0, "door": 1}]})",
         "/objects/0/doors/0/door: expected the handle of a door, found 1"},
        {"door key", wall + R"({"distance": 0, "door": null}, {"distance": -0.0, "door": null}]})",
         R"(/objects/0/doors/1/door: expected a "key" that no other door of the wall has)"},
        {"nested", shed + R"(, "secondView": {"class": "model", "handle": 2}})",
         R"(/objects/0/secondView: unknown key "handle")"},
    };
    for (const Refusal& refusal : refusals)
        EXPECT_EQ(messageOf("{\"objects\": [" + refusal.text + "]}"), "site.json: " + refusal.message)
            << refusal.what;
}

TEST(SiteReader, GivesUpQuicklyOnLargeNonsense) {
    const std::size_t size = 20'000'000;
    std::string manyKeys = "{";
    for (int i = 0; manyKeys.size() < size; ++i)
        manyKeys += "\"k" + std::to_string(i) + "\": 1, ";
    const std::vector<std::string> nonsense = {std::string(size, 'x'), "\"" + std::string(size, 'x'),
                                               manyKeys, std::string(size, '\0')};
    for (const std::string& text : nonsense) {
        const std::clock_t start = std::clock();
        const std::string message = messageOf(text);
        const double seconds = double(std::clock() - start) / CLOCKS_PER_SEC;
        EXPECT_NE(message, "accepted");
        EXPECT_LT(message.size(), 200u);
        EXPECT_LT(seconds, 20.0);
    }
}

} // namespace
