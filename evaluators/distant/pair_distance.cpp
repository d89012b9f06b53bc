#include "evaluators/distant/pair_distance.h"

#include "elements/NUXOpenHouseObject.h"
#include "elements/NUXPrefabHouseObject.h"
#include "elements/NUXRoadObject.h"
#include "site/element_body.h"
#include "site/element_type_identifiers.h"
#include "site/min_body_distance.h"
#include "site/raised_outline.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace {

constexpr double kBodyHeight = 1.0;

/// The bodies of one side of a pair; nothing when the pair measures 0.0 at once.
using Side = std::optional<BodyList>;

Side sideWith(BodyPtr body) {
    BodyList bodies;
    if (body)
        bodies.push_back(std::move(body));
    return bodies;
}

Side elementSide(const NUXElementObject* element) {
    BodyPtr body;
    buildElementBody(element, kBodyHeight, body);
    return sideWith(std::move(body));
}

Side houseWithStairSide(const NUXElementObject* element) {
    const auto* house = NUXPrefabHouseObject::Cast(element);
    return sideWith(house ? buildHouseWithStairBody(*house, kBodyHeight) : nullptr);
}

/// An ordinary road does not count. The road keeps its outline.
Side fireRoadSide(const NUXElementObject* element) {
    const auto* road = NUXRoadObject::Cast(element);
    if (!road)
        return std::nullopt;
    if (!road->getIsFireRoad())
        return BodyList();
    hrx::CPolygon* outline = road->getRoadPoly();
    if (!outline)
        return std::nullopt;
    return sideWith(raisedOutline(outline, kBodyHeight));
}

/// Under a rule of this name, open sheds of this use count.
struct ShedUse {
    const char* ruleName;
    int use;
};

/// Rows that stand in the program itself, so that they are there before any code runs.
template <class Row> class Table {
public:
    constexpr Table() = default;
    template <std::size_t count>
    constexpr Table(const Row (&rows)[count]) : m_begin(rows), m_end(rows + count) {}

    const Row* begin() const { return m_begin; }
    const Row* end() const { return m_end; }
    bool empty() const { return m_begin == m_end; }

private:
    const Row* m_begin = nullptr;
    const Row* m_end = nullptr;
};

/// How the first elements of one type are measured.
struct PairMeasure {
    std::wstring_view firstType;
    Side (*firstSide)(const NUXElementObject* first);
    Table<std::wstring_view> referenceTypes; ///< those measured by their element body
    Table<ShedUse> shedUses;                 ///< no rows: open sheds do not count
    const char* otherShedsRule;              ///< counts the open sheds that are no workshop; may be null
    bool countsFireRoads;
    bool countsPrefabHouses;
};

// Each name as rule files write it; "Eletrical" and "Futureouse" are deliberate. The codes of uses are those
// of the position rules and not those of the absence rules.
constexpr ShedUse kPrefabHouseSheds[] = {{"Distant_PrefabHouseToWoodFactory", 2},
                                         {"Distant_PrefabHouseToWoodWorkingFactory", 3},
                                         {"Distant_PrefabHouseToEletricalMechanicalFactory", 4}};
constexpr ShedUse kFutureHouseSheds[] = {{"Distant_FutureouseToWoodFactory", 2},
                                         {"Distant_FutureHouseToWoodWorkingFactory", 3},
                                         {"Distant_FutureHouseToEletricalMechanicalFactory", 4}};
constexpr ShedUse kSubstationSheds[] = {{"Distant_TransformerSubstationToWoodFactory", 2},
                                        {"Distant_TransformerSubstationToWoodWorkingFactory", 3},
                                        {"Distant_TransformerSubstationToEletricalMechanicalFactory", 4}};

constexpr std::wstring_view kPrefabHouseReferences[] = {
    NUX_ELEMENT_TYPE_FUTUREHOUSE, NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION, NUX_EDO_TYPE_TEMPLATEYARD,
    NUX_EDO_TYPE_WOODYARD, NUX_EDO_TYPE_ELECTRICALMECHANICALYARD};
constexpr std::wstring_view kFutureHouseReferences[] = {
    NUX_EDO_TYPE_TEMPLATEYARD, NUX_EDO_TYPE_WOODYARD,          NUX_EDO_TYPE_ELECTRICALMECHANICALYARD,
    NUX_ELEMENT_TYPE_BOXHOUSE, NUX_ELEMENT_TYPE_CLOSEHOUSE,    NUX_ELEMENT_TYPE_CHAYANTING,
    NUX_EDO_TYPE_ANQUANJT,     NUX_ELEMENT_TYPE_OPENHALFHOUSE, NUX_ELEMENT_TYPE_MIXSITE};
constexpr std::wstring_view kSubstationReferences[] = {
    NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION, NUX_ELEMENT_TYPE_TOTALSTEPDOWNSUBSTATION,
    NUX_EDO_TYPE_TEMPLATEYARD, NUX_EDO_TYPE_WOODYARD, NUX_EDO_TYPE_ELECTRICALMECHANICALYARD};
constexpr std::wstring_view kFireRoadReferences[] = {NUX_EDO_TYPE_TEMPLATEYARD, NUX_EDO_TYPE_WOODYARD,
                                                     NUX_EDO_TYPE_ELECTRICALMECHANICALYARD,
                                                     NUX_ELEMENT_TYPE_FUTUREHOUSE};

constexpr PairMeasure prefabHouseDistance{NUX_ELEMENT_TYPE_PREFABHOUSE,
                                          houseWithStairSide,
                                          kPrefabHouseReferences,
                                          kPrefabHouseSheds,
                                          nullptr,
                                          true,
                                          true};
constexpr PairMeasure futureHouseDistance{NUX_ELEMENT_TYPE_FUTUREHOUSE,
                                          elementSide,
                                          kFutureHouseReferences,
                                          kFutureHouseSheds,
                                          "Distant_FutureHouseToOpenHouse",
                                          false,
                                          false};
constexpr PairMeasure substationDistance{NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION,
                                         elementSide,
                                         kSubstationReferences,
                                         kSubstationSheds,
                                         nullptr,
                                         false,
                                         false};
constexpr PairMeasure fireRoadDistance{
    NUX_EDO_TYPE_ROAD, fireRoadSide, kFireRoadReferences, Table<ShedUse>(), nullptr, false, false};

const PairMeasure* measureOf(std::wstring_view firstType) {
    for (const PairMeasure* measure :
         {&fireRoadDistance, &prefabHouseDistance, &futureHouseDistance, &substationDistance}) {
        if (firstType == measure->firstType)
            return measure;
    }
    return nullptr;
}

bool shedCounts(const PairMeasure& measure, int use, const QString& ruleName) {
    const auto& uses = measure.shedUses;
    const auto isUnderRule = [&](const ShedUse& row) {
        return row.use == use && ruleName == QLatin1String(row.ruleName);
    };
    if (std::any_of(uses.begin(), uses.end(), isUnderRule))
        return true;
    const bool isWorkshop =
        std::any_of(uses.begin(), uses.end(), [&](const ShedUse& row) { return row.use == use; });
    return measure.otherShedsRule && ruleName == QLatin1String(measure.otherShedsRule) && !isWorkshop;
}

Side openShedSide(const PairMeasure& measure, const NUXElementObject* element, const QString& ruleName) {
    const auto* shed = NUXOpenHouseObject::Cast(element);
    if (!shed)
        return std::nullopt;
    if (!shedCounts(measure, shed->openHouseUse(), ruleName))
        return BodyList();
    return elementSide(element);
}

/// Deliberate: a point at the origin. Rules between prefab houses never come here, they are spaced instead.
Side prefabHouseReferenceSide(const NUXElementObject* first) {
    const auto* house = NUXPrefabHouseObject::Cast(first);
    return sideWith(buildRectParamBody(
        NUXRectParam({0.0, 0.0}, 0.0, 0.0, house ? house->getRectAngle() : 0.0), kBodyHeight));
}

Side referenceSide(const PairMeasure& measure, const NUXElementObject* first,
                   const IdentifiedElement& identified, const QString& ruleName) {
    const auto& [reference, type] = identified;
    const auto& types = measure.referenceTypes;
    if (std::find(types.begin(), types.end(), type) != types.end())
        return elementSide(reference);
    if (type == NUX_ELEMENT_TYPE_OPENHOUSE && !measure.shedUses.empty())
        return openShedSide(measure, reference, ruleName);
    if (type == NUX_EDO_TYPE_ROAD && measure.countsFireRoads)
        return fireRoadSide(reference);
    if (type == NUX_ELEMENT_TYPE_PREFABHOUSE && measure.countsPrefabHouses)
        return prefabHouseReferenceSide(first);
    return BodyList();
}

} // namespace

double pairDistance(const IdentifiedElement& first, const IdentifiedElement& reference,
                    const NuxStandardCheckRule& rule) {
    const PairMeasure* measure = measureOf(first.type);
    if (!measure)
        return 0.0;
    Side otherSide = referenceSide(*measure, first.element, reference, rule.name);
    // What only claims to be a road measures 0.0 all the same; others need no body against none.
    if (otherSide && otherSide->empty() && measure != &fireRoadDistance)
        return kNoBodyDistance;
    Side firstSide = measure->firstSide(first.element);
    if (!firstSide || !otherSide)
        return 0.0;
    return minBodyDistance(std::move(*firstSide), std::move(*otherSide));
}
