// Judges every case of every case file, as it stands and placed elsewhere.

#include "InputError.h"
#include "case_file/case_directory.h"
#include "evaluators/distant/NUXRelElementTypeDistantRule.h"
#include "evaluators/position/NUXRelElementTypePositionRule.h"
#include "evaluators/self/NUXElementTypeRule.h"
#include "evaluators/without/NUXWithoutElementTypeRule.h"
#include "rules/rule_fields.h"
#include "rules/rule_file.h"
#include "site/CheckObserver.h"
#include "site_file/site_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace {

using Violations = std::vector<std::pair<long long, std::vector<long long>>>;

/// What a report that explains results is told while a rule is checked.
class Watcher : public CheckObserver {
public:
    Watcher() { setCheckObserver(this); }
    ~Watcher() override { setCheckObserver(nullptr); }
    Watcher(const Watcher&) = delete;

    void beginRule(const NuxStandardCheckRule&) override {}
    void endRule() override {}
    void found(const UdDbObject& element) override { m_found.insert(element.Handle().GetID()); }
    void valued(const UdDbObject& element, double value, double limit) override {
        if (value != limit)
            m_valued.insert(element.Handle().GetID());
    }
    void measured(double distance, const hrx::CVec3<double>&, const hrx::CVec3<double>&) override {
        m_measured = distance;
    }
    void judgedPair(const UdDbObject& element, const UdDbObject& other, double distance) override {
        m_pairs.insert({element.Handle().GetID(), other.Handle().GetID()});
        EXPECT_EQ(distance, m_measured) << "0 where nothing was measured";
        m_measured = 0.0;
    }

    bool hasFound() const { return !m_found.empty(); }
    void expectToldOf(const NuxStandardCheckRule& record) const {
        EXPECT_EQ(hasFound(), record.type != "without");
        const bool isOfDoors = record.name == "Position_DoorToDoor"; // it finds walls and names their doors
        EXPECT_EQ(m_found.count(record.handle), record.handle != 0 && !isOfDoors ? 1u : 0u);
        const bool hasValue = record.name.endsWith("Area") || record.name.endsWith("Width");
        EXPECT_EQ(m_valued.count(record.handle), hasValue ? 1u : 0u);
        const bool hasPairs = record.type == "distant" || record.name.contains("Box");
        for (const qint64 related : record.relatedHandles)
            EXPECT_EQ(m_pairs.count({record.handle, related}), hasPairs ? 1u : 0u) << related;
    }

private:
    std::set<qint64> m_found;
    std::set<qint64> m_valued;
    std::set<std::pair<qint64, qint64>> m_pairs;
    double m_measured = 0.0;
};

std::vector<NuxStandardCheckRule> check(const Json& siteJson, const NuxStandardCheckRule& rule) {
    static NUXElementTypeRule self;
    static NUXWithoutElementTypeRule without;
    static NUXRelElementTypeDistantRule distant;
    static NUXRelElementTypePositionRule position;
    static const std::map<QString, NUXRule*> evaluators = {
        {"self", &self}, {"without", &without}, {"distant", &distant}, {"position", &position}};
    const Site site = readSite(siteJson);
    return evaluators.at(rule.type)->check(site.document->GetModelSpace(), rule);
}

/// Turned about the origin, by the angle whose cosine is 0.6 and whose sine is 0.8, which keeps whole numbers
/// whole where they are divisible by 5; then moved some kilometres away.
void placePoint(Json& point, bool isTurned) {
    const auto x = point.at(0).get<double>();
    const auto y = point.at(1).get<double>();
    point[0] = (isTurned ? 0.6 * x - 0.8 * y : x) + 5000000.0;
    point[1] = (isTurned ? 0.8 * x + 0.6 * y : y) - 3000000.0;
}

void placeObject(Json& object, bool isTurned) {
    static const std::set<std::string> points = {"center", "position", "start",
                                                 "end",    "through",  "radiusPoint"};
    for (auto& [key, value] : object.items()) {
        if (points.count(key))
            placePoint(value, isTurned);
        else if ((key == "polyline" || key == "outline") && value.is_array())
            std::for_each(value.begin(), value.end(), [&](Json& point) { placePoint(point, isTurned); });
        else if (key == "circle" || key == "footprint" || key == "secondView")
            placeObject(value, isTurned);
        else if (key == "extents" && isTurned)
            throw InputError("extents cannot be turned");
        else if (key == "extents")
            std::for_each(value.begin(), value.end(), [&](Json& corner) { placePoint(corner, false); });
    }
    const bool hasDirection = object.contains("length") || object.contains("position");
    if (isTurned && hasDirection)
        object["angle"] = object.value("angle", 0.0) + std::atan2(0.8, 0.6) * 57.29577951308232;
}

Json placed(Json site, bool isTurned) {
    for (Json& object : site.at("objects"))
        placeObject(object, isTurned);
    return site;
}

void judge(const Case& one, const Json& site, const char* placement) {
    Violations expected;
    for (const ExpectedViolation& violation : one.violations)
        expected.emplace_back(violation.element, violation.related);
    Violations found;
    const Watcher watcher;
    for (const NuxStandardCheckRule& record : check(site, one.rule)) {
        found.push_back({record.handle, {record.relatedHandles.begin(), record.relatedHandles.end()}});
        EXPECT_EQ(ruleTexts(record), ruleTexts(one.rule));
        EXPECT_FALSE(record.flag);
        watcher.expectToldOf(record);
    }
    EXPECT_EQ(found, expected) << placement;
    EXPECT_TRUE(one.rule.type != "without" || watcher.hasFound() == found.empty()) << placement;
}

} // namespace

TEST(CaseFiles, HoldAsTheyStandAndPlacedElsewhere) {
    for (const auto& [name, file] : readCaseFiles(SOURCE_DIRECTORY "/cases")) {
        for (const Case& one : file.cases) {
            SCOPED_TRACE(name + ": " + one.sentence);
            judge(one, one.site, "as it stands");
            judge(one, placed(one.site, false), "moved");
            if (!one.dependsOnDirection)
                judge(one, placed(one.site, true), "turned and moved");
        }
    }
}

TEST(CaseFiles, ShowEveryShippedRuleToPassAndToFail) {
    std::set<QString> passing;
    std::set<QString> failing;
    for (const auto& [name, file] : readCaseFiles(SOURCE_DIRECTORY "/cases"))
        for (const Case& one : file.cases)
            (one.violations.empty() ? passing : failing).insert(one.rule.name);
    for (const std::vector<NuxStandardCheckRule>& rules :
         loadRules(SOURCE_DIRECTORY "/data/FireStandardCheck.xml")) {
        const QString& name = rules.front().name;
        EXPECT_TRUE(passing.count(name)) << name.toStdString() << " has no passing case";
        EXPECT_TRUE(failing.count(name)) << name.toStdString() << " has no failing case";
    }
}
