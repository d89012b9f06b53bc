// Judges every case of every case file, as it stands and placed elsewhere.

#include "InputError.h"
#include "case_file/case_directory.h"
#include "evaluators/CheckObserver.h"
#include "evaluators/distant/NUXRelElementTypeDistantRule.h"
#include "evaluators/position/NUXRelElementTypePositionRule.h"
#include "evaluators/self/NUXElementTypeRule.h"
#include "evaluators/without/NUXWithoutElementTypeRule.h"
#include "explain/judged_rules.h"
#include "report/judgement_text.h"
#include "rules/rule_file.h"
#include "rules/rule_texts.h"
#include "site_file/site_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

using namespace firecheck;
using namespace firestandard;

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
    void compared(const Comparison& comparison) override {
        const qint64 element = comparison.element.Handle().GetID();
        m_judged.insert(element);
        expectConsistent(comparison);
        if (comparison.offends)
            m_offences.insert({element, comparison.other ? comparison.other->Handle().GetID() : 0});
    }
    void notJudged(const UdDbObject&, NotJudged) override {}
    void pairNotJudged(const UdDbObject&, const UdDbObject&, NotJudged) override {}

    bool hasJudged() const { return !m_judged.empty(); }

    /// Each violation is told of as an offence with what it names, and nothing else is.
    void expectToldOf(const std::vector<NuxStandardCheckRule>& records) const {
        std::set<std::pair<qint64, qint64>> violations;
        for (const NuxStandardCheckRule& record : records) {
            // Doors are named where walls are judged, and the site as a whole where its roads are.
            if (record.handle == 0 || record.name == "Position_DoorToDoor")
                return;
            for (const qint64 related : record.relatedHandles)
                violations.insert({record.handle, related});
            if (record.relatedHandles.empty())
                violations.insert({record.handle, 0});
        }
        EXPECT_EQ(m_offences, violations);
    }

private:
    static void expectConsistent(const Comparison& comparison) {
        if (!comparison.measurement)
            return;
        const auto& [quantity, value, minimum, maximum] = *comparison.measurement;
        const bool isWithin = (!minimum || value >= *minimum) && (!maximum || value <= *maximum);
        // A box may stand too near by touching, and one that does not serve is no offence beside one that
        // does; what touches the headroom is in it; a corner offends by its doors.
        EXPECT_TRUE(comparison.other || comparison.offends != isWithin) << value;
        const double taken = quantity == Quantity::Distance ? 0.0 : value; // without being measured
        EXPECT_EQ(value, comparison.contact ? comparison.contact->distance : taken);
    }

    std::set<qint64> m_judged;
    std::set<std::pair<qint64, qint64>> m_offences;
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

/// What a report says of the rule, when it is the only one.
std::string outcomeOf(const Case& one, const Json& site, const std::vector<NuxStandardCheckRule>& records) {
    CheckRecorder recorder;
    recorder.beginRule(one.rule);
    check(site, one.rule);
    recorder.endRule();
    SiteReport report;
    report.results = {{QString(), records}};
    for (std::size_t i = 0; i < records.size(); ++i) {
        report.findings.emplace_back();
        report.findings.back().index = i;
    }
    return judgementText(judgedRules(report, RuleRuns(recorder.takeRuns()), {one.rule}).front());
}

void judge(const Case& one, const Json& site, const char* placement) {
    Violations expected;
    for (const ExpectedViolation& violation : one.violations)
        expected.emplace_back(violation.element, violation.related);
    Violations found;
    const Watcher watcher;
    const std::vector<NuxStandardCheckRule> records = check(site, one.rule);
    for (const NuxStandardCheckRule& record : records) {
        found.push_back({record.handle, {record.relatedHandles.begin(), record.relatedHandles.end()}});
        EXPECT_EQ(ruleTexts(record), ruleTexts(one.rule));
        EXPECT_FALSE(record.flag);
    }
    watcher.expectToldOf(records);
    EXPECT_EQ(one.outcome.empty() ? "" : outcomeOf(one, site, records), one.outcome) << placement;
    EXPECT_EQ(found, expected) << placement;
    EXPECT_TRUE(one.rule.type != "without" || watcher.hasJudged() == found.empty()) << placement;
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
