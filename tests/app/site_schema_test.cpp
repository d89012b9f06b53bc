#include "InputError.h"
#include "SchemaJudge.h"
#include "site_file/site_classes.h"
#include "site_file/site_keys.h"
#include "site_file/site_reader.h"
#include "site_file/site_reference.h"
#include "site_file/site_schema.h"
#include "source_file.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace firecheck;

namespace {

bool readerAccepts(const Json& site) {
    try {
        readSite(site);
        return true;
    } catch (const InputError&) {
        return false;
    }
}

/// The first of some values that the schema of a key allows.
Json sample(const KeyShape& shape) {
    if (shape.schema().value("type", "") == "string")
        return "NUX_ELEMENT_POINT";
    if (shape.schema().value("type", "") == "array")
        return Json::array({100, 200});
    return shape.key == "handle" ? 1 : 3;
}

Json smallest(const SiteClass& siteClass, ObjectRole role) {
    Json object;
    for (const KeyShape& shape : objectKeys(siteClass, role))
        if (shape.required)
            object[shape.key] = sample(shape);
    object["class"] = siteClass.name;
    if (siteClass.furtherSchema)
        object["circle"] = {{"center", {0, 0}}, {"radius", 1000}};
    return object;
}

Json siteOf(Json object) {
    return {{"objects", Json::array({std::move(object)})}};
}

std::vector<Json> probes() {
    Json list = Json::parse(
        R"([null, true, 0, -1, 0.5, 3, 3000000000, 1000000000000, -1000000000001, 1e19, "none", "bothEnds",
        [], [1], [1, 2], [1, 2, 3], [1, 2, 3, 4], [1000000000001, 0], [[1, 2]], [[1, 2, 3]], [["1", 2]], [{}], {}, {"low": [1, 2, 3]},
        {"low": [1, 2, 3], "high": [4, 5, 6]}, {"low": [1, 2, 3], "high": [4, 5, 6], "mid": [7, 8, 9]},
        {"center": [1, 2], "radius": 3}, {"center": [1, 2], "radius": -3}, {"center": [1, 2], "radius": 3, "x": 4},
        [{"distance": 1, "door": null}], [{"distance": 1}], [{"distance": 1, "door": "1"}],
        {"class": "drawing"}, {"class": "drawing", "handle": 5}, {"class": "unknown"}, {"class": "woodYard"},
        {"class": "woodYard", "circle": {"center": [1, 2], "radius": 3}}, {"class": "element"},
        {"class": "element", "identifier": "NUX_ELEMENT_POINT", "secondView": {"class": "drawing"}}])");
    return {list.begin(), list.end()};
}

TEST(SiteSchema, JudgesEveryKeyOfEveryClassAsTheReaderDoes) {
    SchemaJudge judge(siteSchema().dump());
    std::size_t accepted = 0;
    for (const SiteClass& siteClass : siteClasses()) {
        const Json base = smallest(siteClass, ObjectRole::InDocument);
        ASSERT_TRUE(readerAccepts(siteOf(base))) << base;
        ASSERT_TRUE(judge.accepts(siteOf(base).dump())) << base;
        std::vector<KeyShape> keys = objectKeys(siteClass, ObjectRole::InDocument);
        keys.push_back({"unheardOf", "", false, {}});
        for (const KeyShape& shape : keys) {
            Json without = base;
            without.erase(shape.key);
            EXPECT_EQ(judge.accepts(siteOf(without).dump()), readerAccepts(siteOf(without))) << without;
            for (const Json& probe : probes()) {
                Json varied = base;
                varied[shape.key] = probe;
                const bool isRead = readerAccepts(siteOf(varied));
                EXPECT_EQ(judge.accepts(siteOf(varied).dump()), isRead) << varied;
                accepted += isRead;
            }
        }
    }
    EXPECT_GT(accepted, 500u);
}

TEST(SiteSchema, JudgesSitesAndFootprintsAsTheReaderDoes) {
    SchemaJudge judge(siteSchema().dump());
    const std::string rectangle = R"("center": [0, 0], "length": 1, "depth": 1)";
    Json sites = Json::parse(R"([[], {}, {"objects": {}}, {"objects": [], "name": 1}, {"objects": [3]},
        {"objects": [], "title": ""}, {"objects": [], "name": "a", "note": "b", "$schema": "c"}])");
    for (const std::string& keys :
         {rectangle, std::string(R"("center": [0, 0])"), std::string(R"("shapeKind": 77)"),
          rectangle + R"(, "polyline": [[1, 2]])",
          rectangle + R"(, "polyline": [[1, 2]], "shapeKind": "polyline")"})
        sites.push_back(siteOf(Json::parse(R"({"class": "woodYard", "handle": 1, )" + keys + "}")));
    for (const Json& site : sites)
        EXPECT_EQ(judge.accepts(site.dump()), readerAccepts(site)) << site;
}

TEST(SiteSchema, IsPublishedAsItIs) {
    EXPECT_TRUE(sourceText("data/site.schema.json") == siteSchema().dump(2) + "\n")
        << "write it anew: firecheck site-schema --output data/site.schema.json";
    EXPECT_TRUE(sourceText("docs/site-classes.md") == siteReference())
        << "write it anew: firecheck site-schema --format markdown --output docs/site-classes.md";
}

TEST(SiteSchema, AcceptsEveryExample) {
    SchemaJudge judge(siteSchema().dump());
    const QStringList examples = QDir(SOURCE_DIRECTORY "/examples").entryList({"*.json"});
    EXPECT_FALSE(examples.empty());
    for (const QString& name : examples)
        EXPECT_TRUE(judge.accepts(sourceText("examples/" + name.toStdString()))) << name.toStdString();
}

} // namespace
