#include "RandomSite.h"

#include "elements/NUX3dsObject.h"
#include "elements/NUXCloseHouseObject.h"
#include "elements/NUXDoorObject.h"
#include "elements/NUXOpenHouseObject.h"
#include "elements/NUXPosterObject.h"
#include "elements/NUXPrefabHouseObject.h"
#include "elements/NUXRoadObject.h"
#include "elements/NUXServiceCableObject.h"
#include "elements/NUXTotalStepDownSubstationObject.h"
#include "elements/NUXTowerCraneObject.h"
#include "elements/NUXWallObject.h"
#include "elements/NUXYardObject.h"

#include <cmath>

namespace {

constexpr double kSideOfAnObject = 14000.0; // of the square of ground that each object has on average

/// Out of a thousand objects.
struct Share {
    int count;
    void (*append)(RandomSite& site);
};

constexpr Share kMix[] = {
    {60, [](RandomSite& site) { site.appendPrefabHouse(); }},
    {50, [](RandomSite& site) { site.appendClosedHouse(); }},
    {60, [](RandomSite& site) { site.appendShed(); }},
    {30, [](RandomSite& site) { site.appendFutureHouse(); }},
    {60, [](RandomSite& site) { site.appendYard(); }},
    {10, [](RandomSite& site) { site.appendSubstation(); }},
    {2, [](RandomSite& site) { site.appendStepDownSubstation(); }},
    {25, [](RandomSite& site) { site.appendRoad(true); }},
    {25, [](RandomSite& site) { site.appendRoad(false); }},
    {20, [](RandomSite& site) { site.appendCable(); }},
    {50, [](RandomSite& site) { site.appendBox(); }},
    {60, [](RandomSite& site) { site.appendWall(); }},
    {20, [](RandomSite& site) { site.appendPoster(); }},
    {8, [](RandomSite& site) { site.appendCrane(); }},
    {320, [](RandomSite& site) { site.appendModel(); }},
    {200, [](RandomSite& site) { site.appendPlainObject(); }},
};

} // namespace

RandomSite::RandomSite(std::size_t objectCount, unsigned seed)
    : m_objectCount(objectCount), m_extent(kSideOfAnObject * std::sqrt(static_cast<double>(objectCount))),
      m_random(seed), m_document(std::make_unique<UdDbDocument>()) {}

// Distributions of the standard library differ from one library to the next; the engine does not.
double RandomSite::between(double low, double high) {
    return low + (high - low) * (static_cast<double>(m_random()) / 4294967296.0);
}

int RandomSite::anyOf(int count) {
    return static_cast<int>(m_random() % static_cast<unsigned>(count));
}

hrx::CVec2<double> RandomSite::place() {
    const double x = between(0.0, m_extent);
    return {x, between(0.0, m_extent)};
}

template <class Params> Params RandomSite::footprint(double length, double depth) {
    Params params;
    const hrx::CVec2<double> centre = place();
    params.rectCentre = {centre.x, centre.y, 0.0};
    params.rectLength = between(0.5, 1.0) * length;
    params.rectDepth = between(0.5, 1.0) * depth;
    params.rectAngle = 90.0 * anyOf(4);
    if (anyOf(4) == 0)
        params.rectAngle += between(0.0, 90.0);
    return params;
}

void RandomSite::appendMix() {
    while (m_document->GetModelSpace()->objects().size() < m_objectCount) {
        int pick = anyOf(1000);
        const Share* share = kMix;
        while (pick >= share->count)
            pick -= (share++)->count;
        share->append(*this);
    }
}

void RandomSite::appendPrefabHouse() {
    auto params = footprint<NUXPrefabHouseParams>(24000.0, 6500.0);
    params.depth = params.rectDepth;
    params.floorCount = 1 + anyOf(3);
    params.stairPosition = static_cast<StairPt>(anyOf(5));
    params.houseUse = anyOf(2);
    for (int room = 0; room <= 4; ++room)
        params.partitions.push_back({params.rectLength * room / 4.0, 0.0});
    m_document->append(std::make_unique<NUXPrefabHouseObject>(params));
}

void RandomSite::appendClosedHouse() {
    static const wchar_t* const uses[] = {L"食堂", L"厕所", L"淋浴间", L"可燃材料库房", L"仓库"};
    auto params = footprint<NUXCloseHouseParams>(12000.0, 7000.0);
    params.use = uses[anyOf(5)];
    m_document->append(std::make_unique<NUXCloseHouseObject>(params));
}

void RandomSite::appendShed() {
    auto params = footprint<NUXOpenHouseParams>(15000.0, 8000.0);
    params.use = anyOf(5);
    m_document->append(std::make_unique<NUXOpenHouseObject>(params));
}

void RandomSite::appendFutureHouse() {
    const auto params = footprint<NUXBaseParams>(40000.0, 18000.0);
    m_document->append(std::make_unique<NUXBaseObject>(L"NUX_ELEMENT_TYPE_FUTUREHOUSE", params));
}

void RandomSite::appendYard() {
    static const wchar_t* const kinds[] = {L"NUX_EDO_TYPE_WOODYARD", L"NUX_EDO_TYPE_TEMPLATEYARD",
                                           L"NUX_EDO_TYPE_ELECTRICALMECHANICALYARD",
                                           L"NUX_EDO_TYPE_STEELBARYARD"};
    auto params = footprint<NUXBaseParams>(14000.0, 9000.0);
    const double x = params.rectCentre.x;
    const double y = params.rectCentre.y;
    const double reach = 0.5 * params.rectLength;
    const int shape = anyOf(6);
    if (shape == 0) {
        params.shapeKind = kCircleShape;
        params.circleCentre = params.rectCentre;
        params.circleRadius = reach;
        params.circleRadiusPoint = {x + reach, y, 0.0};
    } else if (shape == 1) {
        params.shapeKind = kPolylineShape;
        params.polyline = {{x - reach, y - reach, 0.0}, {x + reach, y - reach, 0.3},
                           {x + reach, y, 0.0},         {x, y, 0.0},
                           {x, y + reach, 0.0},         {x - reach, y + reach, 0.0}};
    }
    m_document->append(std::make_unique<NUXYardObject>(params, kinds[anyOf(4)]));
}

void RandomSite::appendSubstation() {
    const auto params = footprint<NUXBaseParams>(4000.0, 3000.0);
    m_document->append(std::make_unique<NUXBaseObject>(L"NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION", params));
}

void RandomSite::appendStepDownSubstation() {
    m_document->append(
        std::make_unique<NUXTotalStepDownSubstationObject>(footprint<NUXBaseParams>(6000.0, 4000.0)));
}

void RandomSite::appendRoad(bool isFireRoad) {
    NUXRoadParams params;
    params.isFireRoad = isFireRoad;
    params.width = 3500 + 250 * anyOf(6);
    params.start = place();
    const double run = between(10000.0, 60000.0);
    const bool isEastward = anyOf(2) == 0;
    params.end = params.start + (isEastward ? hrx::CVec2<double>(run, 0.0) : hrx::CVec2<double>(0.0, run));
    if (anyOf(5) == 0) {
        params.shapeKind = kArcShape;
        params.reference = (params.start + params.end) * 0.5 + hrx::CVec2<double>(0.2 * run, -0.2 * run);
    }
    m_document->append(std::make_unique<NUXRoadObject>(params));
}

void RandomSite::appendCable() {
    NUXServiceCableParams params;
    params.start = place();
    params.end = params.start + hrx::CVec2<double>(between(-40000.0, 40000.0), between(-40000.0, 40000.0));
    params.startElevation = between(3.0, 9.0);
    params.endElevation = params.startElevation;
    params.radius = 20.0;
    if (anyOf(5) == 0) {
        params.isStraight = false;
        params.shapeKind = kArcShape;
        const hrx::CVec2<double> run = params.end - params.start;
        params.middle = (params.start + params.end) * 0.5 + hrx::CVec2<double>(-0.1 * run.y, 0.1 * run.x);
    }
    m_document->append(std::make_unique<NUXServiceCableObject>(params));
}

void RandomSite::appendBox() {
    NUX3dsParams params;
    const hrx::CVec2<double> position = place();
    params.position = {position.x, position.y, 0.0};
    params.length = 800.0;
    params.depth = 400.0;
    params.height = 1200.0;
    m_document->append(std::make_unique<NUX3dsObject>(L"NUX_EDO_TYPE_FIREEXTINGUISHERBOX", params));
}

void RandomSite::appendWall() {
    NUXWallParams params;
    params.start = place();
    params.end = params.start + hrx::CVec2<double>(between(5000.0, 20000.0), 0.0);
    m_document->append(std::make_unique<NUXWallObject>(params));

    NUXDoorParams door;
    door.position = {params.end.x, params.end.y + 2000.0, 0.0};
    NUXDoorObject& gate = m_document->append(std::make_unique<NUXDoorObject>(door));
    params.start = params.end;
    params.end = params.start + hrx::CVec2<double>(0.0, between(5000.0, 20000.0));
    params.doors[2000.0].doorId = UdDbObjectId(&gate);
    m_document->append(std::make_unique<NUXWallObject>(params));
}

void RandomSite::appendPoster() {
    NUXPosterParams params;
    params.drawType = 1 + anyOf(2);
    params.firstPoint = place();
    params.secondPoint = params.firstPoint + hrx::CVec2<double>(between(1000.0, 8000.0), 0.0);
    params.height = 1500.0;
    params.elevation = between(0.0, 5.0);
    m_document->append(std::make_unique<NUXPosterObject>(params));
}

void RandomSite::appendCrane() {
    NUXTowerCraneParams params;
    const hrx::CVec2<double> position = place();
    params.position = {position.x, position.y, 0.0};
    params.angle = between(0.0, 360.0);
    params.jibHeight = 40000.0;
    params.frontJibLength = 55000.0;
    params.counterJibLength = 14000.0;
    m_document->append(std::make_unique<NUXTowerCraneObject>(params));
}

void RandomSite::appendModel() {
    static const wchar_t* const kinds[] = {L"NUX_EDO_TYPE_FIREHYDRANT", L"NUX_EDO_TYPE_WAJUEJI",
                                           L"NUX_EDO_TYPE_QICHEDIAO", L"NUX_EDO_TYPE_POWERDISTRIBUTIONBOX",
                                           L"NUX_ELEMENT_TYPE_CAR"};
    NUX3dsParams params;
    const hrx::CVec2<double> position = place();
    params.position = {position.x, position.y, 0.0};
    params.angle = between(0.0, 360.0);
    params.length = between(500.0, 6000.0);
    params.depth = between(500.0, 2500.0);
    params.height = 2500.0;
    m_document->append(std::make_unique<NUX3dsObject>(kinds[anyOf(5)], params));
}

void RandomSite::appendPlainObject() {
    m_document->append(std::make_unique<UdDbPlainObject>());
}

std::unique_ptr<UdDbDocument> randomSite(std::size_t objectCount) {
    RandomSite site(objectCount, 1);
    site.appendMix();
    return site.take();
}
