#include "suggestion_checks.h"

#include <QString>

#include <cmath>

namespace {

Json sourceJson(const std::string& name) {
    return Json::parse(sourceText(name));
}

std::vector<Suggestion> suggestionsFor(const Json& site, const SiteReport& report,
                                       const SuggestOptions& options = {}) {
    return suggestChanges(site, report, shippedRules(), options);
}

/// The sentence for the first finding of the rule, or why there is none.
std::string said(const Json& site, const std::string& rule, const SuggestOptions& options = {}) {
    SiteReport report = checked(site);
    auto& findings = report.findings;
    findings.erase(std::remove_if(findings.begin(), findings.end(),
                                  [&](const Finding& finding) {
                                      return report.record(finding).name.toStdString() != rule;
                                  }),
                   findings.end());
    if (findings.empty())
        return "not found";
    const Suggestion suggestion = suggestionsFor(site, report, options).front();
    return suggestion.steps.empty() ? suggestion.obstacle : suggestion.steps.front().sentence;
}

TEST(Suggestions, AreTheSmallestChangeInWords) {
    const std::string house = R"({"class": "prefabHouse", "handle": )";
    const std::string office = R"(, "use": "office", "length": 10000, "depth": 5000, )";
    const struct {
        std::string objects;
        std::string rule;
        std::string sentence;
    } cases[] = {
        {house + "1" + office + R"("center": [0, 0]}, )" + house + "2" + office + R"("center": [0, 9000]})",
         "Distant_PrefabHouseToPrefabHouse",
         "Move office 1 0.50 m south: Distant_PrefabHouseToPrefabHouse then measures 4.00 m"},
        {house + "1" + office + R"("center": [0, 0], "floors": 3})", "Self_PrefabHouseStairs",
         "Give office 1 a stair at each end: Self_PrefabHouseStairs is then kept"},
        {R"({"class": "prefabHouse", "handle": 1, "use": "dormitory", "center": [0, 0], "length": 45000.5, "depth": 8000,
            "stairs": "bothEnds"})",
         "Self_PrefabHouseFloorArea",
         "Shorten dormitory 1 to 37.50 m from 45.0005 m: Self_PrefabHouseFloorArea then measures 300.00 m²"},
        {house + "1" + office + R"("center": [0, 0], "floorDepth": 11000, "partitions": [0, 9999.5, 12000]})",
         "Self_PrefabHouseRoomArea",
         "Set the partitions of office 1 at 0.00, 9.09, 12.00 m along it: Self_PrefabHouseRoomArea then measures "
         "99.99 m²"},
        {R"({"class": "road", "handle": 1, "fireRoad": true, "start": [0, 0], "end": [9000, 0], "width": 3001})",
         "Self_RoadMinWidth", "Widen fire road 1 to 4.00 m: Self_RoadMinWidth then measures 4.00 m"},
        {R"({"class": "woodYard", "handle": 1, "center": [0, 0], "length": 4000, "depth": 4000},
            {"class": "extinguisherBox", "handle": 2, "position": [0, 6000]})",
         "Position_FireExtinguisherBoxToWoodYard",
         "Move extinguisher box 2 0.88 m south: Position_FireExtinguisherBoxToWoodYard then measures 2.995 m"},
        {R"({"class": "road", "handle": 1, "fireRoad": true, "start": [0, 0], "end": [90000, 0], "width": 4000},
            {"class": "poster", "handle": 2, "start": [9000, -5000], "end": [9000, 5000], "height": 1000,
             "elevationMetres": 3.5})",
         "Position_FireRoad", "Raise poster 2 by 0.51 m: Position_FireRoad is then kept"},
        {R"({"class": "templateYard", "handle": 1, "center": [0, 0], "length": 4000, "depth": 4000},
            {"class": "serviceCable", "handle": 2, "start": [-9000, 1000], "end": [9000, 1000],
             "startElevationMetres": 6})",
         "Position_WireToTemplateYard",
         "Move formwork yard 1 1.01 m south: Position_WireToTemplateYard is then kept"},
    };
    for (const auto& expected : cases)
        EXPECT_EQ(said(Json::parse(R"({"objects": [)" + expected.objects + "]}"), expected.rule),
                  expected.sentence);
}

TEST(Suggestions, LeaveAloneWhatIsKeptOrTooFar) {
    const Json site = sourceJson("examples/tower-site.json");
    const std::string rule = "Distant_PrefabHouseToPrefabHouse";
    SuggestOptions keeping;
    keeping.kept = {413, 414};
    EXPECT_EQ(said(site, rule, keeping), "neither of the elements may be moved");
    SuggestOptions near;
    near.reach = 490.0;
    EXPECT_EQ(said(site, rule, near).rfind("nothing within 0.49 m helps", 0), 0u) << said(site, rule, near);
    const Json tower = Json::parse(R"({"objects": [
        {"class": "futureHouse", "handle": 1, "center": [0, 0], "length": 10000, "depth": 10000},
        {"class": "templateYard", "handle": 2, "center": [19000, 0], "length": 10000, "depth": 10000}]})");
    const std::string ofTower = "Distant_FutureHouseToTemplateYard";
    SuggestOptions moving;
    moving.kept = {2};
    EXPECT_EQ(said(tower, ofTower, moving), "neither of the elements may be moved");
    moving.movable = {"futureHouse"};
    EXPECT_EQ(said(tower, ofTower, moving),
              "Move future building 1 1.00 m west: " + ofTower + " then measures 10.00 m");
}

TEST(Suggestions, MoveTheRoadWhenAskedFor) {
    SuggestOptions moving;
    moving.movable = {"road"};
    moving.kept = {2};
    EXPECT_EQ(said(Json::parse(R"({"objects": [
        {"class": "road", "handle": 1, "fireRoad": true, "start": [0, 0], "end": [9000, 0], "width": 4000},
        {"class": "poster", "handle": 2, "start": [5000, -5000], "end": [5000, 1500], "height": 1000,
         "elevationMetres": 3.5}]})"),
                   "Position_FireRoad", moving),
              "Move fire road 1 3.51 m north: Position_FireRoad is then kept");
}

TEST(Suggestions, TellWhyNothingIsTried) {
    const std::string road =
        R"({"class": "road", "handle": 1, "fireRoad": true, "start": [0, 0], "end": [9000, 0], "width": )";
    const std::string house = R"({"class": "prefabHouse", "handle": 1, "use": "office", "center": [0, 0], )";
    const std::string cable =
        R"({"class": "serviceCable", "handle": 2, "start": [5000, -9000], "end": [5000, 9000],
        "startElevationMetres": 3})";
    const std::string poster =
        R"({"class": "poster", "handle": 2, "start": [5000, -5000], "end": [5000, 5000],
        "height": 1000, "elevationMetres": 3.5})";
    const std::string yard =
        R"({"class": "templateYard", "handle": 1, "center": [5000, 0], "length": 4000, "depth": 4000}, )";
    const std::string stays = "the element is to stay as it is";
    const std::string stay = "the elements are to stay as they are";
    const struct {
        std::string objects;
        std::set<long long> kept;
        std::string rule;
        std::string obstacle;
    } cases[] = {
        {road + "3001}", {1}, "Self_RoadMinWidth", stays},
        {house + R"("length": 10000, "depth": 5000, "floors": 3})", {1}, "Self_PrefabHouseStairs", stays},
        {house + R"("length": 40000, "depth": 8000})", {1}, "Self_PrefabHouseFloorArea", stays},
        {house + R"("length": 12000, "depth": 11000, "partitions": [0, 12000]})",
         {1},
         "Self_PrefabHouseRoomArea",
         stays},
        {yard + cable, {1, 2}, "Position_WireToTemplateYard", stay},
        {road + "4000}, " + poster, {1, 2}, "Position_FireRoad", stay},
        {road + "4000}, " + poster, {2}, "Position_FireRoad", "neither of the elements may be moved"},
        {yard + R"({"class": "extinguisherBox", "handle": 2, "position": [5000, 0]})",
         {1, 2},
         "Position_FireExtinguisherBoxToTemplateYard",
         "neither of the elements may be moved"},
        {road + R"(4000}, {"class": "wall", "handle": 3, "start": [0, 9000], "end": [9000, 9000],
            "doors": [{"distance": 4000, "door": 2}]}, {"class": "door", "handle": 2, "position": [4000, 9000]})",
         {},
         "Self_OneDoorToRoadLoop",
         "a gate's place is its wall's \"doors\" entry and is not searched"},
        {R"({"class": "wall", "handle": 3, "start": [0, 0], "end": [9000, 0]},
            {"class": "wall", "handle": 4, "start": [0, 0], "end": [0, 9000]},
            {"class": "futureHouse", "handle": 2, "center": [4500, 4500], "length": 9000, "depth": 9000})",
         {},
         "Without_Toilet",
         "no free place was found for an object of class closedHouse and use \"厕所\": every way stands in future building 2"},
    };
    for (const auto& expected : cases) {
        SuggestOptions options;
        options.kept = expected.kept;
        EXPECT_EQ(said(Json::parse(R"({"objects": [)" + expected.objects + "]}"), expected.rule, options),
                  expected.obstacle)
            << expected.objects;
    }
}

TEST(Suggestions, OfEveryExampleAreKept) {
    struct Example {
        std::string name;
        std::size_t helped; // violations for which there is a suggestion
    };
    for (const Example& example :
         {Example{"tower-site", 20}, Example{"small-yard", 22}, Example{"every-rule-offends", 63}}) {
        const Json site = sourceJson("examples/" + example.name + ".json");
        const SiteReport report = checked(site);
        std::size_t helped = 0;
        for (const Suggestion& suggestion : suggestionsFor(site, report)) {
            expectKept(site, report, suggestion, example.name + ": ");
            helped += suggestion.steps.empty() ? 0 : 1;
        }
        EXPECT_EQ(helped, example.helped) << example.name;
    }
}

struct Broken {
    long long handle;
    long dx;
    long dy;
};

TEST(Suggestions, MoveNoFartherThanTheWayBack) {
    const Json whole = sourceJson("examples/tower-site-compliant.json");
    const std::vector<Broken> cases = {
        {414, 0, -500},  {414, 0, 700},     {413, 0, 320},    {404, -800, 0},  {404, -2000, 300},
        {702, 0, 2000},  {702, -1500, 900}, {701, -1400, 0},  {802, 0, -1500}, {501, 1200, -900},
        {1208, 2750, 0}, {1222, 0, 620},    {1222, 0, -3000}, {1351, 0, 7500}, {411, 150, -260},
        {602, 900, 0},   {703, 1200, 3000}, {1227, 2600, 40}};
    std::size_t helped = 0;
    for (const Broken& broken : cases) {
        Json site = whole;
        for (Json& object : site["objects"])
            if (object.at("handle") == broken.handle)
                object = movedObject(object, {broken.dx, broken.dy});
        const SiteReport report = checked(site);
        const double wayBack = std::hypot(double(broken.dx), double(broken.dy)) * 1e-3;
        for (const Suggestion& suggestion : suggestionsFor(site, report)) {
            const std::string trace = std::to_string(broken.handle) + ": ";
            expectKept(site, report, suggestion, trace);
            if (report.findings.size() > 1 || suggestion.steps.empty())
                continue; // the way back mends them all at once
            const auto& move = suggestion.steps.front().move;
            ASSERT_TRUE(move) << trace << suggestion.steps.front().sentence;
            EXPECT_LE(std::hypot(move->x, move->y), wayBack + 1e-9)
                << trace << suggestion.steps.front().sentence;
            ++helped;
        }
    }
    EXPECT_GE(helped, 12u);
}

TEST(SitePlan, LeavesWhatItSaysAndTheRestOfTheFile) {
    const std::string text = sourceText("examples/tower-site.json");
    const Json before = Json::parse(text);
    const SitePlan plan = planChanges(before, shippedRules(), {});
    const std::string changed = changedSiteText(text, before, plan.site);
    const SiteReport report = checked(Json::parse(changed));
    ASSERT_EQ(report.findings.size(), plan.remaining.size());
    ASSERT_EQ(plan.remaining.size(), 1u);
    EXPECT_EQ(report.record(report.findings[0]).name.toStdString(), plan.remaining[0].what.rule);
    EXPECT_EQ(plan.remaining[0].what.rule, "Position_DoorToDoor");

    std::set<std::string> lines;
    for (const QString& line : QString::fromStdString(changed).split('\n'))
        lines.insert(line.toStdString());
    std::size_t changedLines = 0;
    for (const QString& line : QString::fromStdString(text).split('\n'))
        changedLines += 1 - lines.count(line.toStdString());
    std::set<long long> changedElements;
    for (const SuggestedStep& step : plan.steps)
        for (const SuggestedObject& object : step.objects)
            if (!object.isNew)
                changedElements.insert(object.handle);
    EXPECT_EQ(changedLines, changedElements.size()) << "each element has a line of its own";
}

TEST(ChangedSiteText, KeepsEveryByteOfWhatIsNotChanged) {
    const struct {
        std::string text;
        std::string after;
        std::string changed;
    } cases[] = {
        {"{ \"objects\" : [ { \"handle\" : 1 , \"a\":[ 1,2 ] } ] }",
         R"({"objects": [{"handle": 1, "a": [1, 3]}]})",
         "{ \"objects\" : [ { \"handle\" : 1 , \"a\":[1, 3] } ] }"},
        {"{\"objects\": [{\"handle\": 1}]}", R"({"objects": [{"handle": 1, "b": {"c": true}}]})",
         "{\"objects\": [{\"handle\": 1, \"b\": {\"c\": true}}]}"},
        {"{\"objects\": [{\"handle\": 1, \"a\": 1}]}", R"({"objects": [{"handle": 1, "a": 2, "b": 3}]})",
         "{\"objects\": [{\"handle\": 1, \"a\": 2, \"b\": 3}]}"},
        {"{\"objects\": [\r\n  {\"handle\": 1},\r\n  {\"handle\": 2}\r\n]}",
         R"({"objects": [{"handle": 1}, {"handle": 9}, {"handle": 2}]})",
         "{\"objects\": [\r\n  {\"handle\": 1},\r\n  {\"handle\": 9},\r\n  {\"handle\": 2}\r\n]}"},
        {"{\"objects\": []}", R"({"objects": [{"handle": 4, "n": "食堂"}]})",
         "{\"objects\": [{\"handle\": 4, \"n\": \"食堂\"}]}"},
    };
    for (const auto& expected : cases)
        EXPECT_EQ(changedSiteText(expected.text, Json::parse(expected.text), Json::parse(expected.after)),
                  expected.changed);
}

} // namespace
