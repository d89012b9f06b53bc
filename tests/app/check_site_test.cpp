#include "cad/UdApDocManager.h"
#include "check/check_site.h"
#include "engine/NUXCheck.h"
#include "engine/NuxFireStandardCheck.h"
#include "report/ReportWriter.h"
#include "site_file/site_reader.h"

#include <gtest/gtest.h>

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

QString lineOf(const NuxStandardCheckRule& r) {
    QString line = r.name + "|" + r.type + "|" + r.elementType + "|" + r.propertyType + "|" + r.standard +
                   "|" + r.objName + "|" + r.referenceObjName + "|" + r.ruleDescription + "|" +
                   r.ruleCatalog + "|" + r.ruleDetailDescription + "|" + r.referenceElementType + "|" +
                   r.constraintCondition + "|" + r.distantValue + "|" + QString::number(r.handle);
    for (const qint64 handle : r.relatedHandles)
        line += "|" + QString::number(handle);
    return line;
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

    QStringList expected;
    const auto& results = NUXCheck::instance()->getMapRules();
    for (auto filed = results.begin(); filed != results.end(); ++filed)
        for (const NuxStandardCheckRule& record : filed.value())
            expected << filed.key() << lineOf(record);
    QStringList written;
    std::size_t records = 0;
    for (const Json& filed : site["results"]) {
        for (const Json& record : filed["records"]) {
            ++records;
            QStringList line;
            for (const auto& [field, value] : record.items()) {
                if (field == "relatedHandles")
                    for (const Json& handle : value)
                        line << QString::fromStdString(handle);
                else if (field != "flag")
                    line << QString::fromStdString(value);
            }
            written << QString::fromStdString(filed["key"]) << line.join("|");
        }
    }
    EXPECT_EQ(written.join("\n"), expected.join("\n"));
    EXPECT_GT(records, 5u);
    EXPECT_EQ(site["violations"], records);

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

TEST(CheckSite, KeepsNothingFromTheSiteBefore) {
    crowdedSite();
    const SiteReport empty =
        checkSite(parseSite(R"({"objects": []})", "empty"), "empty.json", shippedRules());
    EXPECT_TRUE(empty.elements.empty());
    for (const auto& filed : empty.results)
        for (const NuxStandardCheckRule& record : filed.second)
            EXPECT_EQ(record.type, "without") << record.name.toStdString();
    EXPECT_EQ(empty.violationCount(), empty.results.size());
}

} // namespace
