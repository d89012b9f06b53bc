#include "elements/NUXPrefabHouseObject.h"
#include "evaluators/distant/DistanceCondition.h"
#include "evaluators/distant/pair_distance.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace firestandard;

TEST(DistanceCondition, TellsNoDistanceFromTheFarthest) {
    for (const char* word : {"less", "less or more", ""}) {
        NuxStandardCheckRule rule;
        rule.constraintCondition = word;
        const DistanceCondition condition(rule);
        EXPECT_FALSE(condition.isDistanceViolated(99999999999.0)) << word;
        EXPECT_TRUE(condition.isDistanceViolated(std::nextafter(99999999999.0, 1e12))) << word;
        EXPECT_FALSE(condition.isDistanceViolated(std::numeric_limits<double>::quiet_NaN())) << word;
    }
}

// What reports say that a rule asks for is what it judges by.
TEST(DistanceCondition, TellsTheLimitsThatItsWordJudgesBy) {
    struct Row {
        const char* word;
        const char* value;
        std::optional<double> minimum, maximum;
    };
    const Row rows[] = {
        {"less", "6:10", 6000.0, std::nullopt},       {"less or more", "6:10", 6000.0, 10000.0},
        {"less or more", "6", 6000.0, std::nullopt},  {"less or more", "6:", 6000.0, 0.0},
        {"Less", "6:10", std::nullopt, std::nullopt},
    };
    for (const Row& row : rows) {
        NuxStandardCheckRule rule;
        rule.constraintCondition = row.word;
        rule.distantValue = row.value;
        const DistanceCondition condition(rule);
        EXPECT_EQ(condition.minimum(), row.minimum) << row.word << ' ' << row.value;
        EXPECT_EQ(condition.maximum(), row.maximum) << row.word << ' ' << row.value;
    }
}

// Rules between prefab houses are spaced and never measure a pair.
TEST(PairDistance, OfTwoPrefabHousesIsThatOfTheFirstFromTheOrigin) {
    const NUXElementObject claimant(L"NUX_ELEMENT_TYPE_PREFABHOUSE");
    NUXPrefabHouseParams params;
    params.rectLength = 4000.0;
    params.rectDepth = 6000.0;
    for (const double side : {-1.0, 1.0}) {
        params.rectCentre = {side * 20000.0, side * 10000.0, 0.0};
        const NUXPrefabHouseObject house(params);
        const NUXPrefabHouseObject other{NUXPrefabHouseParams()};
        const std::wstring type = house.getElementType();
        EXPECT_EQ(pairDistance({&claimant, type}, {&house, type}, nullptr).distance, kNoBodyDistance);
        const double gallery = side > 0.0 ? 500.0 : 0.0; // south of the house
        EXPECT_NEAR(pairDistance({&house, type}, {&other, type}, nullptr).distance,
                    std::hypot(18000.0, 7000.0 - gallery), 1e-4);
    }
}
