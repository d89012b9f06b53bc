#include "cad/UdApDocManager.h"
#include "check/check_site.h"
#include "engine/NUXCheck.h"
#include "engine/NuxFireStandardCheck.h"
#include "report/ReportWriter.h"
#include "site_file/site_reader.h"

#include <gtest/gtest.h>

using namespace firecheck;

namespace {

const RuleMap& shippedRules() {
    static const RuleMap& rules = loadRules(SOURCE_DIRECTORY "/data/FireStandardCheck.xml");
    return rules;
}

/// Two houses, of which one offends twice and is filed under a handle that sorts as text; a road; a door.
SiteReport crowdedSite() {
    return checkSite(parseSite(R"({"name": "工地", "objects": [
        {"class": "prefabHouse", "handle": 9, "name": "宿舍", "center": [0, 0], "length": 20000, "depth": 16000,
         "use": "dormitory", "floors": 3},
        {"class": "prefabHouse", "handle": 10, "center": [0, 17000], "length": 6000, "depth": 6000, "use": "office"},
        {"class": "road", "handle": 11, "fireRoad": true, "start": [-50000, 0], "end": [-50000, 900], "width": 10},
        {"class": "door", "handle": 12, "position": [0, 90000]},
        {"class": "drawing", "handle": 13, "refusesToOpen": true}]})",
                               "crowded"),
                     "crowded.json", shippedRules());
}

/// The texts in their order, then handles and flag.
Json jsonOf(const NuxStandardCheckRule& r) {
    Json values = Json::array();
    for (const QString& text :
         {r.name, r.type, r.elementType, r.propertyType, r.standard, r.objName, r.referenceObjName,
          r.ruleDescription, r.ruleCatalog, r.ruleDetailDescription, r.referenceElementType,
          r.constraintCondition, r.distantValue, QString::number(r.handle)})
        values.push_back(text.toStdString());
    Json related = Json::array();
    for (const qint64 handle : r.relatedHandles)
        related.push_back(std::to_string(handle));
    values.push_back(related);
    values.push_back(r.flag);
    return values;
}

TEST(CheckSite, JsonHoldsTheEnginesMapsInTheirOrder) {
    const SiteReport report = crowdedSite();
    std::string text;
    const auto writer = jsonReportWriter([&text](const std::string& piece) { text += piece; });
    writer->begin();
    writer->add(report);
    writer->add(report);
    writer->end();
    const Json json = Json::parse(text);
    ASSERT_EQ(json["sites"].size(), 2u);
    const Json& site = json["sites"][1];

    Json expected = Json::array();
    const auto& results = NUXCheck::instance()->getMapRules();
    for (auto filed = results.begin(); filed != results.end(); ++filed)
        for (const NuxStandardCheckRule& record : filed.value())
            expected.push_back({filed.key().toStdString(), jsonOf(record)});
    Json written = Json::array();
    for (const Json& filed : site["results"])
        for (const Json& record : filed["records"])
            written.push_back({filed["key"], std::vector<Json>(record.begin(), record.end())});
    EXPECT_EQ(written, expected);
    EXPECT_GT(written.size(), 5u);
    EXPECT_EQ(site["violations"], written.size());

    const auto& states = NUXCheck::instance()->getMapRulesCheckState();
    ASSERT_EQ(site["checkState"].size(), std::size_t(states.size()));
    std::size_t index = 0;
    for (auto state = states.begin(); state != states.end(); ++state, ++index) {
        EXPECT_EQ(site["checkState"][index]["key"], state.key().toStdString());
        EXPECT_EQ(site["checkState"][index]["flags"], Json(state.value()));
    }
}

TEST(CheckSite, NamesWhatTheResultsNameAndWhatWasPassedOver) {
    const SiteReport report = crowdedSite();
    const ElementLabel* house = report.element(9);
    ASSERT_TRUE(house);
    EXPECT_EQ(house->name, "宿舍");
    EXPECT_EQ(house->className, "prefabHouse");
    EXPECT_EQ(house->identifier, "NUX_ELEMENT_TYPE_PREFABHOUSE");
    EXPECT_FALSE(report.element(0));
    EXPECT_FALSE(report.element(13));
    ASSERT_EQ(report.notJudged.size(), 1u);
    EXPECT_EQ(report.notJudged[0].what, "object #13");
    EXPECT_EQ(report.objectCount, 5u);

    // No document is left open for whatever comes next.
    EXPECT_FALSE(UdDocManagerPtr()->CurDocument());
}

} // namespace
