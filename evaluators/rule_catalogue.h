#pragma once

#include "rules_config/NuxStandardCheckRule.h"

#include <array>
#include <string_view>
#include <vector>

// What is known of every rule name, and of every pair of element types that has a distance. The evaluators
// dispatch and select by it; whoever explains rules reads it here.

namespace firestandard {

inline constexpr double kMillimetresPerMetre = 1000.0;

// Limits that no rule file changes; millimetres, square metres a floor or a room, and numbers of floors.
inline constexpr double kMinimumFireRoadWidth = 4000.0;
inline constexpr double kJoiningTolerance = 200.0;
inline constexpr double kMaximumFloorArea = 300.0;
inline constexpr double kMaximumRoomArea = 100.0;
inline constexpr double kLargestAreaWithoutStairs = 200.0;
inline constexpr int kFewestFloorsWithStairs = 3;
inline constexpr double kMaximumBoxDistance = 3000.0;
inline constexpr double kHeadroom = 4000.0;
inline constexpr double kCornerTolerance = 100.0;

/// The test that judges rules of a name, and the file in which it stands.
enum class RuleTest {
    PrefabHouseFloorArea, ///< self/prefab_house
    PrefabHouseRoomArea,  ///< self/prefab_house
    PrefabHouseStairs,    ///< self/prefab_house
    RoadMinWidth,         ///< self/NUXElementTypeRule
    RoadLoop,             ///< self/road_network
    OneDoorToRoadLoop,    ///< self/road_network
    RequiredFacility,     ///< without/NUXWithoutElementTypeRule
    Distance,             ///< distant/pair_distance
    FireExtinguisherBox,  ///< position/fire_extinguisher_box
    OverheadCable,        ///< position/overhead_cable
    DoorToDoor,           ///< position/door_to_door
    FireRoadHeadroom,     ///< position/fire_road_headroom
};

/// The use that a rule's name asks for, in the host's codes.
struct RequiredUse {
    enum class Of {
        Anything,      ///< the name asks for none
        FireRoad,      ///< a road for fire engines
        PrefabHouse,   ///< `code`
        OpenShed,      ///< `code`
        OtherOpenShed, ///< an open shed that is no workshop: of none of the uses 2, 3 and 4
        ClosedHouse,   ///< `name`
        WastePool,     ///< `code`
    };
    Of of = Of::Anything;
    int code = 0;
    std::wstring_view name = {};

    /// Whether an open shed of this use is asked for.
    bool isOpenShedOf(int use) const {
        return (of == Of::OpenShed && use == code) || (of == Of::OtherOpenShed && (use < 2 || use > 4));
    }
};

/// The attributes of a rule, beside "Type", that can decide its outcome.
struct AttributesRead {
    bool elementType = false;
    bool referenceElementType = false;
    bool propertyType = false;
    bool constraintCondition = false;
    bool distantValue = false;
};

struct RuleRow {
    const char* name; ///< as rule files write it, irregular spellings included
    const char* type; ///< of the evaluator that knows it
    RuleTest test;
    std::wstring_view elementType;          ///< of the elements that the name is about
    std::wstring_view referenceElementType; ///< of what they are judged against; empty for none
    RequiredUse use;
    std::array<double, 2> fixedLimits; ///< constants from above, 0 for none

    AttributesRead reads() const;
};

/// The 57 names, evaluator by evaluator, in a fixed order.
const std::vector<RuleRow>& ruleCatalogue();

/// The row of that name; null when there is none.
const RuleRow* findRule(const QString& name);
/// Null also for a name that is known to an evaluator of another type.
const RuleRow* findRule(const QString& name, const QString& type);

/// The four values of the attribute "Type" that select an evaluator.
const std::vector<const char*>& ruleTypes();

/// The attributes that evaluators of this type read under any name.
AttributesRead attributesRead(const QString& type);

/// Whether an evaluator judges the rule. Rules of the types "without" and "distant" are judged under any
/// name; without a row no open shed counts, and no use satisfies.
bool isJudged(const NuxStandardCheckRule& rule);

/// The reference types that elements of one type have a distance to. Any other pair of that first type is
/// passed over. A site element of a first type without a row counts as 0 from everything, and so does every
/// 3-D model.
struct DistanceRow {
    std::wstring_view elementType;
    std::vector<std::wstring_view> referenceElementTypes;

    bool isMeasuredTo(std::wstring_view referenceElementType) const;
};

const std::vector<DistanceRow>& distanceCatalogue();

/// Null when the type has no row.
const DistanceRow* findDistances(std::wstring_view elementType);

} // namespace firestandard
