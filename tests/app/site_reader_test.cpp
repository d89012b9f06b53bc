#include "InputError.h"
#include "elements/NUX3dsObject.h"
#include "elements/NUXDoorObject.h"
#include "elements/NUXOpenHouseObject.h"
#include "elements/NUXPrefabHouseObject.h"
#include "elements/NUXWallObject.h"
#include "elements/NUXYardOBJObject.h"
#include "json/JsonPlace.h"
#include "site_file/site_reader.h"

#include <gmock/gmock.h>

#include <ctime>

using namespace firecheck;

namespace {

Site siteOf(const std::string& objects) {
    return parseSite("{\"objects\": [" + objects + "]}", "test");
}

/// The first object of the site, viewed as Class.
template <class Class> Class* first(const Site& site) {
    const UdDbObjects& objects = site.document->GetModelSpace()->objects();
    return objects.empty() ? nullptr : Class::Cast(objects.front().get());
}

using Numbers = std::vector<double>;
using Point = hrx::CVec2<double>;
using SpacePoint = hrx::CVec3<double>;

TEST(SiteReader, LinksWallsToTheirDoors) {
    const Site site = siteOf(R"({"class": "wall", "handle": 1, "start": [0, 1], "end": [9000, 2], "doors": [
            {"distance": 5000, "door": 3, "width": 1, "height": 2, "elevation": 3, "leafAngle": 4, "offset": 5},
            {"distance": 1000, "door": null, "key": 9000}, {"distance": 2000, "door": 2, "flagged": true}]},
        {"class": "door", "handle": 2, "position": [2000, 0], "refusesToOpen": true},
        {"class": "door", "handle": 3, "position": [5000, 0], "leafWidth": 1200, "postWidth": 60, "postDepth": 70,
         "angle": 15})");
    const auto* wall = first<NUXWallObject>(site);
    EXPECT_EQ(wall->getEndPosition(), Point(9000, 2));
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
    SpacePoint low;
    SpacePoint high;
    element->GetGeomExtents(low, high);
    EXPECT_EQ(low, SpacePoint(1, 2, 3));
    const auto* view = NUX3dsBaseObject::Cast(element);
    ASSERT_TRUE(view);
    EXPECT_FALSE(NUX3dsObject::Cast(element));
    EXPECT_EQ(view->GetPosition(), SpacePoint(8, 9, 10));
    EXPECT_EQ(view->Handle().GetID(), -5);
    view->GetGeomExtents(low, high);
    EXPECT_EQ(high, SpacePoint(8, 8, 8));

    const Site houses =
        siteOf(R"({"class": "prefabHouse", "handle": 7, "name": "宿舍 3", "center": [1, 2, 3], "length": 4,
        "depth": 5, "elevation": 8, "use": 77, "gallerySide": -1, "partitions": [11, [12, 13]]})");
    const auto* house = first<NUXPrefabHouseObject>(houses);
    std::vector<Point> partitions;
    house->getEveryWidth(partitions);
    EXPECT_EQ(partitions, (std::vector<Point>{{11, 0}, {12, 13}}));
    EXPECT_EQ((Numbers{house->getElevation(), double(house->houseUse()), double(house->getIsFB())}),
              (Numbers{8, 77, -1}));
    EXPECT_EQ(houses.labels.at(7).name, "宿舍 3");
    EXPECT_EQ(houses.labels.at(7).className, "prefabHouse");

    const Site mesh = siteOf(R"({"class": "yardMesh", "handle": 1, "center": [0, 0], "length": 1, "depth": 1,
        "parametersKnown": false})");
    Point centre;
    double unused = 0.0;
    EXPECT_FALSE(first<NUXYardOBJObject>(mesh)->calculateParam(centre, unused, unused, unused));

    const Site drawing = siteOf(R"({"class": "drawing", "handle": 9223372036854775807})");
    EXPECT_FALSE(first<NUXElementObject>(drawing));
    EXPECT_TRUE(drawing.document->hasHandle(9223372036854775807));
}

struct Refused {
    std::string text;
    std::string message;
};

template <class Matcher>
void expectRefused(const std::string& text, const Matcher& message, const char* name = "site.json") {
    EXPECT_THAT([&] { parseSite(text, name); }, testing::ThrowsMessage<InputError>(message))
        << text.substr(0, 150);
}

TEST(SiteReader, RefusesTextThatIsNoJson) {
    const std::vector<Refused> refusals = {
        {"",
         "site.json:1:1: expected JSON in UTF-8: unexpected end of input; expected '[', '{', or a literal"},
        {"{\"objects\":\n  [",
         "site.json:2:4: expected JSON in UTF-8: unexpected end of input; expected '[', '{', or a literal"},
        {"{\"objects\": []}\n}",
         "site.json:2:1: expected JSON in UTF-8: unexpected '}'; expected end of input"},
        {"{\"objects\":\n[1e999]}", "site.json:2:7: expected a finite number"},
        {"{\"食堂\": 1, \"食堂\": 1}", "site.json:1:14: the key \"食堂\" occurs twice in its object"},
        {"{\"name\": \"\xff\"}",
         "site.json:1:11: expected JSON in UTF-8: invalid string: ill-formed UTF-8 byte"},
        {"{\"objects\": [NaN]}", "site.json:1:14: expected JSON in UTF-8: invalid literal"},
        {std::string(2000000, '['), "site.json:1:33: nested deeper than 32 levels"},
    };
    for (const Refused& refusal : refusals)
        expectRefused(refusal.text, refusal.message);
}

TEST(SiteReader, RefusesWhatIsNoSite) {
    const std::string shed =
        R"({"class": "openShed", "handle": 1, "use": 0, "center": [0, 0], "length": 1, "depth": 1)";
    const std::string wall = R"({"class": "wall", "handle": 1, "start": [0, 0], "end": [1, 0], "doors": [)";
    const std::vector<Refused> refusals = {
        {R"({"class": "openshed", "handle": 1})",
         R"(/objects/0/class: unknown class "openshed"; did you mean "openShed"?)"},
        {shed + R"(, "agnle": 5})", R"(/objects/0/agnle: unknown key "agnle"; did you mean "angle"?)"},
        {shed + R"(, "jibInclination": 5})",
         "/objects/0/jibInclination: unknown key \"jibInclination\"; the keys are class, handle, name, note, "
         "identifier, extents, refusesToOpen, center, length, depth, angle, circle, polyline, elevation, shapeKind, "
         "use, secondView"},
        {R"({"class": "drawing"})",
         R"(/objects/0: expected the key "handle" (the number by which reports name the object; each object has its own))"},
        {shed + R"(, "angle": "0"})", "/objects/0/angle: expected a number, found a string"},
        {R"({"class": "road", "handle": 1, "start": [0, 0, 0], "end": [1, 0]})",
         "/objects/0/start: expected a point [x, y], found a list of 3"},
        {R"({"class": "openShed", "handle": 1, "shapeKind": 0, "use": "hotwork"})",
         R"(/objects/0/use: expected one of "general", "hotWork", "formwork", "woodworking", "mechanical", or an integer code; did you mean "hotWork"?)"},
        {R"({"class": "road", "handle": 1, "start": [0, 0], "end": [1, 0], "width": 1.5})",
         "/objects/0/width: expected an integer, found a fraction"},
        {R"({"class": "road", "handle": 1, "start": [0, 0], "end": [1, 0], "width": 2147483648})",
         "/objects/0/width: expected an integer from 0 to 2147483647"},
        {R"({"class": "drawing", "handle": 0})", "/objects/0/handle: expected a handle other than 0"},
        {R"({"class": "drawing", "handle": 9223372036854775808})",
         "/objects/0/handle: expected an integer from -9223372036854775808 to 9223372036854775807"},
        {R"({"class": "drawing", "handle": 4}, {"class": "drawing", "handle": 4})",
         "/objects/1/handle: expected a handle of its own, found 4 once more"},
        {R"({"class": "woodYard", "handle": 1, "center": [0, 0], "length": 1})",
         R"(/objects/0: expected a footprint: "center", "length" and "depth", or "circle", or "polyline")"},
        {shed + R"(, "polyline": []})",
         R"(/objects/0: expected "shapeKind" to say which of the footprints counts)"},
        {wall + R"({"distance": 0, "door": 8}]})",
         "/objects/0/doors/0/door: expected the handle of a door, found 8"},
        {wall + R"({"distance": 0, "door": 1}]})",
         "/objects/0/doors/0/door: expected the handle of a door, found 1"},
        {wall + R"({"distance": 0, "door": null}, {"distance": -0.0, "door": null}]})",
         R"(/objects/0/doors/1/door: expected a "key" that no other door of the wall has)"},
        {shed + R"(, "secondView": {"class": "drawing"}})",
         "/objects/0/secondView/class: unknown class of 3-D models \"drawing\"; the classes are extinguisherBox, "
         "model, sizelessModel"},
        {R"({"class": "dormitory", "handle": 1})",
         R"(/objects/0/class: unknown class "dormitory", which is a use of "prefabHouse"; did you mean "prefabHouse"?)"},
    };
    for (const Refused& refusal : refusals)
        EXPECT_THAT([&] { readSite(Json::parse("{\"objects\": [" + refusal.text + "]}")); },
                    testing::ThrowsMessage<RefusedJson>(refusal.message));
}

TEST(SiteReader, TellsEverythingThatIsWrongWithItsPlace) {
    const std::string text = R"({"objects": [
  {"class": "door", "handle": 7, "positon": [0, "1"],
   "leafWidth": -1, "name": "门"},
  {"class": "wall", "handle": 7, "start": [0, 0], "end": [1, 0], "doors": [{"distance": 0, "door": 7}]}, 5,
  {"class": "wall", "handle": 8, "start": [0, 0], "end": [1, 0], "doors": [{"distance": "0", "door": 6}]}],
 "\u006eames": {"a": [1, 2]}})";
    expectRefused(text,
                  R"(s.json:2:3: #7 "门", /objects/0: expected the key "position" (middle of the door)
s.json:2:34: #7 "门", /objects/0/positon: unknown key "positon"; did you mean "position"?
s.json:3:4: #7 "门", /objects/0/leafWidth: expected an integer from 0 to 100000000
s.json:4:21: #7, /objects/1/handle: expected a handle of its own, found 7 once more
s.json:4:106: /objects/2: expected an object, found a number
s.json:5:77: #8, /objects/3/doors/0/distance: expected a number, found a string
s.json:5:94: #8, /objects/3/doors/0/door: expected the handle of a door, found 6
s.json:6:2: /names: unknown key "names"; did you mean "name"?)",
                  "s.json");
}

TEST(SiteReader, GivesUpQuicklyOnLargeNonsense) {
    const std::size_t size = 20'000'000;
    std::string manyKeys = "{";
    for (int i = 0; manyKeys.size() < size; ++i)
        manyKeys += "\"k" + std::to_string(i) + "\": 1, ";
    for (const std::string& text :
         {std::string(size, 'x'), "\"" + std::string(size, 'x'), manyKeys, std::string(size, '\0')}) {
        const std::clock_t start = std::clock();
        expectRefused(text, testing::SizeIs(testing::Lt(200u)));
        EXPECT_LT(double(std::clock() - start) / CLOCKS_PER_SEC, 20.0);
    }
}

} // namespace
