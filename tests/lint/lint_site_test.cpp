#include "site_lint/SiteDoubts.h"
#include "source_file.h"

#include <gmock/gmock.h>

using namespace firecheck;

namespace {

const RuleMap& rules() {
    static const RuleMap& shipped = loadRules(SOURCE_DIRECTORY "/data/FireStandardCheck.xml");
    return shipped;
}

/// Each doubt as "CODE POINTER", followed by "> SUGGESTION" where there is one.
std::vector<std::string> doubtsOf(const std::string& siteText) {
    const SiteFile file = parseSiteFile(siteText, "site.json");
    std::vector<std::string> doubts;
    for (const SiteDoubt& doubt : siteDoubts(file, rules()))
        doubts.push_back(doubt.code + " " + doubt.pointer +
                         (doubt.suggestion.empty() ? "" : " > " + doubt.suggestion));
    return doubts;
}

TEST(LintSite, DoubtsWhatNobodyMeans) {
    const std::string house = R"("handle": 1, "center": [0, 0], "length": 9000, "depth": 6000)";
    const std::string prefab = R"({"class": "prefabHouse", "use": "office", )" + house;
    const std::string closed = R"({"class": "closedHouse", )" + house;
    const std::string canteens = R"({"class": "closedHouse", "handle": 2, "use": "食堂", "center": [9e4, 0],
        "length": 5000, "depth": 5000}, )";
    const std::string wall =
        R"({"class": "wall", "handle": 3, "start": [0, 0], "end": [90000, 0], "doors": )";
    const std::string gate = R"(, {"class": "door", "handle": 4, "position": [5000, 0], "leafWidth": 6000})";
    const struct {
        std::string objects;
        std::vector<std::string> doubts;
    } rows[] = {
        {prefab + "}", {}},
        {R"({"class": "woodYard", "handle": 1, "center": [0, 0], "length": 20, "depth": 8.5})",
         {"doubtful-size /objects/0/length > 20000", "doubtful-size /objects/0/depth > 8500"}},
        {prefab + R"(, "floors": 0, "elevation": 7000000})",
         {"doubtful-size /objects/0/elevation > 7000", "doubtful-size /objects/0/floors"}},
        {R"({"class": "serviceCable", "handle": 1, "start": [0, 0], "end": [9000, 0], "startElevationMetres": 7000})",
         {"doubtful-size /objects/0/startElevationMetres > 7"}},
        {prefab + R"(, "partitions": [0, 3600, 3.6, 12000]})",
         {"doubtful-size /objects/0/partitions/2", "doubtful-size /objects/0/partitions/3"}},
        {R"({"class": "futureHouse", "handle": 1, "polyline": [[0, 0], [20, 0], [20, 20]]})",
         {"doubtful-size /objects/0/polyline > 20000"}},
        {R"({"class": "futureHouse", "handle": 1,
             "polyline": [[0, 0], [20000, 0], [0, 10000], [20000, 10000]]})",
         {"bad-outline /objects/0/polyline"}},
        {R"({"class": "woodYard", "handle": 1, "polyline": [[0, 0], [20000, 0]]})",
         {"bad-outline /objects/0/polyline"}},
        {R"({"class": "woodYard", "shapeKind": "polyline", )" + house + "}",
         {"bad-outline /objects/0/shapeKind"}},
        {prefab + R"(, "stairs": 5, "gallerySide": 0})", {"unknown-code /objects/0/stairs"}},
        {prefab + R"(, "identifier": "NUX_ELEMENT_TYPE_BOXHOUS"})",
         {"unknown-identifier /objects/0/identifier > NUX_ELEMENT_TYPE_BOXHOUSE"}},
        {R"({"class": "model", "handle": 1, "identifier": "crane of ours", "position": [0, 0], "length": 900,
             "depth": 900})",
         {}},
        {closed + R"(, "use": "toilet"})", {"unknown-use /objects/0/use > 厕所"}},
        {closed + R"(, "use": "食"})", {"unknown-use /objects/0/use > 食堂"}},
        {canteens + closed + R"(, "use": "餐厅"})", {}},
        {closed + R"(, "use": "门卫室"})", {}},
        {wall + R"([{"distance": 5400, "door": 4}]})" + gate, {}},
        {wall + R"([{"distance": 200000, "door": 4}]})" + gate,
         {"door-off-wall /objects/0/doors/0/distance"}},
        {wall + R"([{"distance": 9000, "door": 4}]})" + gate, {"door-off-wall /objects/0/doors/0/distance"}},
        {wall + R"([{"distance": -9000, "door": null, "flagged": true}]})" + gate, {}},
        {R"({"class": "woodYard", "handle": 2, "center": [0, 0], "length": 20000, "depth": 20000}, )" +
             prefab + "}",
         {"overlap /objects/1"}},
        {R"({"class": "woodYard", "handle": 2, "center": [0, 0], "length": 2000, "depth": 20000}, )" +
             prefab + "}",
         {"overlap /objects/1"}},
        {R"({"class": "woodYard", "handle": 2, "center": [9050, 0], "length": 9000, "depth": 20000}, )" +
             prefab + "}",
         {}},
        {R"({"class": "road", "handle": 8, "start": [0, 0], "end": [9000, 0]},
            {"class": "road", "handle": 9, "start": [1000, 9000], "end": [9e6, 9000], "outline": "none"},
            {"class": "poster", "handle": 7, "start": [5.001e9, 0], "end": [5.002e9, 0], "height": 900}, )" +
             prefab + "}",
         {"remote /objects/2"}},
    };
    for (const auto& row : rows)
        EXPECT_THAT(doubtsOf("{\"objects\": [" + row.objects + "]}"), testing::ElementsAreArray(row.doubts))
            << row.objects;
}

TEST(LintSite, FindsTheExamplesClean) {
    for (const char* name : {"small-yard", "tower-site", "tower-site-compliant"})
        EXPECT_THAT(doubtsOf(sourceText("examples/" + std::string(name) + ".json")), testing::IsEmpty())
            << name;
}

} // namespace
