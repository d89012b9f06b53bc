#include "cad/UdApDocManager.h"
#include "elements/NUXRoadObject.h"
#include "engine/NUXCheck.h"
#include "engine/NuxFireStandardCheck.h"
#include "evaluators/CheckObserver.h"
#include "evaluators/distant/NUXRelElementTypeDistantRule.h"
#include "evaluators/position/NUXRelElementTypePositionRule.h"
#include "evaluators/self/NUXElementTypeRule.h"
#include "evaluators/without/NUXWithoutElementTypeRule.h"
#include "rule_map_outline.h"
#include "rules_config/NUXRuleConfigFile.h"

#include <gtest/gtest.h>

#include <new>

using firestandard::RuleMap;

namespace {

NuxStandardCheckRule rule(const QString& type, const QString& name, const QString& elementType = {}) {
    NuxStandardCheckRule result;
    result.type = type;
    result.name = name;
    result.elementType = elementType;
    return result;
}

const NuxStandardCheckRule kNarrow = rule("self", "Self_RoadMinWidth"); // both roads of the document offend
const NuxStandardCheckRule kLoop = rule("self", "Self_RoadLoop");       // offends without an element
const NuxStandardCheckRule kMissing = rule("without", "Without_X", "X");

std::unique_ptr<UdDbDocument> twoNarrowRoads() {
    auto document = std::make_unique<UdDbDocument>();
    for (const long long handle : {42, 17}) {
        NUXRoadParams road;
        road.isFireRoad = true;
        road.width = 3000;
        road.start = {0.0, 100000.0 * handle};
        road.end = {20000.0, 100000.0 * handle};
        document->append(std::make_unique<NUXRoadObject>(road), handle);
    }
    return document;
}

/// A document that is current while the test lasts, and rules that the store then holds.
class Engine : public testing::Test {
protected:
    Engine() : m_document(UdDocManagerPtr()->open(twoNarrowRoads())) {}
    ~Engine() override { UdDocManagerPtr()->close(m_document); }

    static void useRules(const RuleMap& rules) {
        const_cast<RuleMap&>(NUXRuleConfigFile::Single()->getAllRuleMap()) = rules;
    }

    /// With the names of the rules above by their initials.
    static std::string results(NuxFireStandardCheck& engine) { return brief(outline(engine.getMapRules())); }

    /// The flags as "key: count; key: count"; a flag that is set counts 100.
    static std::string states(NuxFireStandardCheck& engine) {
        QStringList entries;
        for (auto entry = engine.getMapRulesCheckState().cbegin();
             entry != engine.getMapRulesCheckState().cend(); ++entry) {
            int count = 0;
            for (const bool flag : *entry)
                count += flag ? 100 : 1;
            entries << entry.key() + ": " + QString::number(count);
        }
        return brief(entries.join("; ").toStdString());
    }

    UdApDocument* m_document;

private:
    static std::string brief(const std::string& text) {
        return QString::fromStdString(text)
            .replace(kNarrow.name, "N")
            .replace(kLoop.name, "L")
            .replace(kMissing.name, "M")
            .toStdString();
    }
};

} // namespace

TEST_F(Engine, FilesResultsAndFlags) {
    struct Row {
        const char* what;
        RuleMap rules;
        const char* results;
        const char* states;
        const char* clearedStates;
    };
    const Row rows[] = {
        {"no rule", {}, "", "", ""},
        {"by element", {{"K", {kNarrow}}}, "17: N; 42: N", "17:N: 1; 42:N: 1", "17: 1; 42: 1"},
        {"without an element: under the rule key", {{"K", {kLoop}}}, "K: L", "K:L: 1", "K: 1"},
        {"without an element after elements: beside those of the last one",
         {{"K", {kNarrow, kLoop}}},
         "17: N L; 42: N",
         "17:L: 1; 17:N: 1; 42:N: 1",
         "17: 2; 42: 1"},
        {"without an element before elements: under the rule key",
         {{"K", {kLoop, kNarrow}}},
         "17: N; 42: N; K: L",
         "17:N: 1; 42:N: 1; K:L: 1",
         "17: 1; 42: 1; K: 1"},
        {"another entry starts anew",
         {{"J", {kNarrow}}, {"K", {kLoop}}},
         "17: N; 42: N; K: L",
         "17:N: 1; 42:N: 1; K:L: 1",
         "17: 1; 42: 1; K: 1"},
        {"absence rules: the filing key alone", {{"X", {kMissing, kMissing}}}, "X: M M", "X: 2", "X: 2"},
        {"one rule twice for an element: one vector of two flags",
         {{"K", {kNarrow, kNarrow}}},
         "17: N N; 42: N N",
         "17:N: 2; 42:N: 2",
         "17: 2; 42: 2"},
        {"types that select no evaluator, others not affected",
         {{"A", {rule("Self", "Self_RoadMinWidth")}}, {"B", {rule("", "#comment")}}, {"K", {kLoop}}},
         "K: L",
         "K:L: 1",
         "K: 1"},
        {"a name that its evaluator does not know", {{"A", {rule("self", "Self_Roadloop")}}}, "", "", ""},
    };
    for (const Row& row : rows) {
        useRules(row.rules);
        NuxFireStandardCheck& engine = *NUXCheck::instance();
        engine.DoCheck();
        EXPECT_EQ(results(engine), row.results) << row.what;
        EXPECT_EQ(states(engine), row.states) << row.what;
        engine.clearMapRulesCheckState();
        EXPECT_EQ(states(engine), row.clearedStates) << row.what;
    }
}

TEST_F(Engine, KeepsResultsAndFlagsWhenACheckIsGivenUp) {
    struct GivesUpAtTheSecondRule : firestandard::CheckObserver {
        void beginRule(const NuxStandardCheckRule&) override {
            if (++rules == 2)
                throw std::bad_alloc();
        }
        void endRule() override {}
        void compared(const firestandard::Comparison&) override {}
        void notJudged(const UdDbObject&, firestandard::NotJudged) override {}
        void pairNotJudged(const UdDbObject&, const UdDbObject&, firestandard::NotJudged) override {}
        int rules = 0;
    };
    useRules({{"K", {kNarrow}}});
    NuxFireStandardCheck& engine = *NUXCheck::instance();
    engine.DoCheck();
    useRules({{"J", {kLoop}}, {"K", {kMissing}}});
    GivesUpAtTheSecondRule observer;
    firestandard::setCheckObserver(&observer);
    EXPECT_THROW(engine.DoCheck(), std::bad_alloc);
    firestandard::setCheckObserver(nullptr);
    EXPECT_EQ(results(engine) + " / " + states(engine), "17: N; 42: N / 17:N: 1; 42:N: 1");
}

TEST_F(Engine, KeepsResultsAndFlagsWithoutADrawing) {
    useRules({{"K", {kNarrow}}});
    NuxFireStandardCheck& engine = *NUXCheck::instance();
    EXPECT_EQ(NUXCheck::instance(), &engine);
    engine.DoCheck();
    engine.getMapRulesCheckState()["17:Self_RoadMinWidth"][0] = true;
    const std::string before = results(engine) + states(engine);
    EXPECT_NE(before.find("100"), std::string::npos);

    UdApDocManager* manager = UdDocManagerPtr();
    manager->setCurrent(nullptr);
    engine.DoCheck();
    EXPECT_EQ(results(engine) + states(engine), before) << "no document";
    for (const bool hasDatabase : {false, true}) {
        UdApDocument* bare = manager->open(
            hasDatabase ? std::make_unique<UdDbDocument>(UdDbDocument::Content::Nothing) : nullptr);
        engine.DoCheck();
        EXPECT_EQ(results(engine) + states(engine), before)
            << (hasDatabase ? "no model space" : "no database");
        manager->close(bare);
    }

    UdApDocument* empty = manager->open(std::make_unique<UdDbDocument>());
    engine.DoCheck();
    EXPECT_EQ(results(engine) + states(engine), "") << "an empty model space is a drawing";
    manager->close(empty);
}

TEST_F(Engine, CopiesHaveMapsOfTheirOwn) {
    useRules({{"K", {kNarrow}}});
    NuxFireStandardCheck& engine = *NUXCheck::instance();
    engine.DoCheck();
    const NuxFireStandardCheck original(engine);
    NuxFireStandardCheck copy(original);
    NuxFireStandardCheck assigned(original);
    assigned.getMapRules().clear();
    assigned = original;
    engine.getMapRules().clear();
    for (NuxFireStandardCheck* other : {&copy, &assigned}) {
        EXPECT_EQ(results(*other), "17: N; 42: N");
        other->DoCheck();
        EXPECT_EQ(results(*other), "17: N; 42: N");
    }
}

TEST(Evaluators, CarryTheirLabelsAndKeepForeignMaps) {
    NUXElementTypeRule self;
    NUXRelElementTypeDistantRule distant;
    NUXRelElementTypePositionRule position;
    NUXWithoutElementTypeRule without;
    EXPECT_EQ(self.getType(), "ElementTypeRule");
    EXPECT_EQ(distant.getType(), "RelElementTypeDistantRule");
    EXPECT_EQ(position.getType(), "RuleType");
    EXPECT_EQ(without.getType(), "WithoutElementTypeTRule");

    RuleMap rules{{"X", {kMissing}}};
    for (NUXRule* evaluator : std::initializer_list<NUXRule*>{&self, &distant, &position, &without}) {
        EXPECT_TRUE(evaluator->removeWithoutRules(nullptr, nullptr, rules));
        EXPECT_EQ(rules.size(), 1);
        for (const char* name : {"Self_RoadLoop", "Distant_X", "Position_FireRoad", "Without_X"})
            EXPECT_EQ(evaluator->check(nullptr, rule("", name)).size(), evaluator == &without ? 1u : 0u)
                << name;
    }
}
