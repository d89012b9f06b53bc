#include "findings.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using Findings = std::vector<std::string>;

Findings found(const Json& site) {
    static const RuleMap& rules = loadRules(SOURCE_DIRECTORY "/data/FireStandardCheck.xml");
    return findings(site, rules);
}

TEST(ExampleSites, HaveJustThePlantedViolations) {
    const Json expectedOfFiles = sourceJson("tests/examples/planted-violations.json");
    for (const auto& [fileName, violations] : expectedOfFiles.items()) {
        Findings expected = violations;
        std::sort(expected.begin(), expected.end());
        EXPECT_EQ(found(sourceJson("examples/" + fileName)), expected) << fileName;
    }
}

// The headroom rule keeps what it finds about the last object only, so this asks it about every object.
TEST(CompliantTowerSite, StaysCompliantWhateverObjectStandsLast) {
    const Json site = sourceJson("examples/tower-site-compliant.json");
    for (std::size_t i = 0; i < site["objects"].size(); ++i) {
        Json reordered = site;
        Json& objects = reordered["objects"];
        objects.erase(i);
        objects.push_back(site["objects"][i]);
        EXPECT_EQ(found(reordered), Findings{}) << site["objects"][i];
    }
}

struct Change {
    long long handle;
    const char* patch; ///< keys of the object that differ; null removes the object
    Findings violations;
};

Json changed(Json site, const Change& change) {
    Json& objects = site["objects"];
    const auto object = std::find_if(objects.begin(), objects.end(),
                                     [&](const Json& o) { return o["handle"] == change.handle; });
    const Json patch = Json::parse(change.patch);
    if (patch.is_null())
        objects.erase(object);
    else
        object->merge_patch(patch);
    return site;
}

// The site keeps several least distances exactly, so that a millimetre decides.
TEST(CompliantTowerSite, OneChangeBreaksJustOneRule) {
    const std::vector<Change> changes = {
        {501, "null", {"Without_Canteen 0:"}},
        {502, R"({"use": "厕所 "})", {"Without_Toilet 0:"}},
        // Dormitory 1: 4999 from the fire road, 3999 from dormitory 2.
        {411, R"({"center": [30000, 87499]})", {"Distant_PrefabHouseToFireRoad 411: 207"}},
        {411, R"({"center": [30000, 87501]})", {"Distant_PrefabHouseToPrefabHouse 411: 412"}},
        // The foremen's office: 6999 and 7001 from the woodworking workshop.
        {404, R"({"center": [136999, 44000]})", {"Distant_PrefabHouseToWoodWorkingFactory 404: 602"}},
        {404, R"({"center": [137001, 44000]})", {}},
        // The formwork yard: 9999 and 10001 from tower A.
        {702, R"({"center": [98000, 66001]})", {"Distant_FutureHouseToTemplateYard 301: 702"}},
        {702, R"({"center": [98000, 65999]})", {}},
        {207, R"({"width": 3999})", {"Self_RoadMinWidth 207:"}},
        {207, R"({"width": 4000})", {}},
        // A floor of a hair more than 300 m², and of just as much.
        {415, R"({"length": 37501})", {"Self_PrefabHouseFloorArea 415:"}},
        {415, R"({"length": 37500})", {}},
        // Bricks that touch the fire road, and 1 beside it.
        {1351, R"({"position": [150000, 26400]})", {"Position_FireRoad 201: 1351"}},
        {1351, R"({"position": [150000, 26399]})", {}},
    };
    const Json site = sourceJson("examples/tower-site-compliant.json");
    for (const Change& change : changes)
        EXPECT_EQ(found(changed(site, change)), change.violations) << change.handle << change.patch;
}

} // namespace
