// A few objects of all classes with any parameters: a check survives them, names only what is there, and
// gives the same results when it is run again.

#include "ByteReader.h"
#include "base/rooted_file_name.h"
#include "cad/UdApDocManager.h"
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
#include "engine/NUXCheck.h"
#include "engine/NuxFireStandardCheck.h"
#include "require.h"

namespace {

constexpr int kMostObjects = 12;

class SiteMaker {
public:
    explicit SiteMaker(ByteReader& bytes) : m_bytes(bytes) {}

    std::unique_ptr<UdDbObject> object() {
        switch (m_bytes.below(13)) {
        case 0:
            return prefabHouse();
        case 1: {
            auto params = footprint<NUXOpenHouseParams>();
            params.use = m_bytes.below(6);
            return std::make_unique<NUXOpenHouseObject>(params);
        }
        case 2:
            return std::make_unique<NUXYardObject>(footprint<NUXBaseParams>(),
                                                   m_bytes.below(2) ? L"NUX_EDO_TYPE_WOODYARD"
                                                                    : L"NUX_EDO_TYPE_TEMPLATEYARD");
        case 3:
            return std::make_unique<NUXBaseObject>(L"NUX_ELEMENT_TYPE_FUTUREHOUSE",
                                                   footprint<NUXBaseParams>());
        case 4:
            return std::make_unique<NUXBaseObject>(L"NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION",
                                                   footprint<NUXBaseParams>());
        case 5:
            return road();
        case 6:
            return cable();
        case 7:
            return poster();
        case 8:
            return crane();
        case 9:
            return box();
        case 10:
            return std::make_unique<NUXTotalStepDownSubstationObject>(footprint<NUXBaseParams>());
        case 11:
            return std::make_unique<NUXCloseHouseObject>(footprint<NUXCloseHouseParams>());
        default:
            return wall();
        }
    }

private:
    double number() { return m_bytes.coordinate(); }
    hrx::CVec2<double> point() {
        const double x = number();
        return {x, number()};
    }
    hrx::CVec3<double> spacePoint() {
        const hrx::CVec2<double> plan = point();
        return {plan.x, plan.y, number()};
    }

    template <class Params> Params footprint() {
        Params params;
        params.shapeKind = kRectangleShape;
        if (m_bytes.below(4) == 0)
            params.shapeKind = static_cast<std::uint32_t>(m_bytes.below(12));
        params.elevation = number();
        params.rectCentre = params.circleCentre = spacePoint();
        params.rectLength = number();
        params.rectDepth = params.circleRadius = number();
        params.rectAngle = number();
        params.circleRadiusPoint = spacePoint();
        if (params.shapeKind == kPolylineShape) {
            params.polyline.resize(static_cast<std::size_t>(m_bytes.below(80)));
            for (hrx::PolyPt2d& corner : params.polyline)
                corner = {number(), number(), m_bytes.bulge()};
        }
        return params;
    }

    std::unique_ptr<UdDbObject> prefabHouse() {
        auto params = footprint<NUXPrefabHouseParams>();
        params.stairPosition = static_cast<StairPt>(m_bytes.below(7));
        params.isFB = m_bytes.below(2);
        params.depth = number();
        params.partitions.resize(static_cast<std::size_t>(m_bytes.below(4)), point());
        return std::make_unique<NUXPrefabHouseObject>(params);
    }

    std::unique_ptr<UdDbObject> road() {
        NUXRoadParams params;
        params.shapeKind = m_bytes.below(2) ? kStraightShape : kArcShape;
        params.isFireRoad = m_bytes.below(4) != 0;
        params.width = m_bytes.byte() * 40;
        params.start = point();
        params.end = point();
        params.reference = point();
        params.outline = static_cast<NUXRoadOutline>(m_bytes.below(8) == 0 ? m_bytes.below(3) : 0);
        return std::make_unique<NUXRoadObject>(params);
    }

    std::unique_ptr<UdDbObject> cable() {
        NUXServiceCableParams params;
        params.isStraight = m_bytes.below(2) == 0;
        params.shapeKind = m_bytes.below(2) ? kStraightShape : kArcShape;
        params.start = point();
        params.end = point();
        params.middle = point();
        params.startElevation = number();
        params.endElevation = number();
        params.radius = number();
        return std::make_unique<NUXServiceCableObject>(params);
    }

    std::unique_ptr<UdDbObject> poster() {
        NUXPosterParams params;
        params.drawType = m_bytes.below(4);
        params.firstPoint = point();
        params.secondPoint = point();
        params.height = number();
        params.elevation = number();
        return std::make_unique<NUXPosterObject>(params);
    }

    std::unique_ptr<UdDbObject> crane() {
        NUXTowerCraneParams params;
        params.position = spacePoint();
        params.angle = number();
        params.jibHeight = number();
        params.frontJibLength = number();
        params.counterJibLength = number();
        params.jibInclination = number();
        return std::make_unique<NUXTowerCraneObject>(params);
    }

    std::unique_ptr<UdDbObject> box() {
        NUX3dsParams params;
        params.position = spacePoint();
        params.angle = number();
        params.length = number();
        params.depth = number();
        return std::make_unique<NUX3dsObject>(
            m_bytes.below(4) ? L"NUX_EDO_TYPE_FIREEXTINGUISHERBOX" : L"NUX_EDO_TYPE_FIREHYDRANT", params);
    }

    std::unique_ptr<UdDbObject> wall() {
        if (m_bytes.below(2) == 0) {
            NUXDoorParams door;
            door.position = spacePoint();
            return std::make_unique<NUXDoorObject>(door);
        }
        NUXWallParams params;
        params.start = point();
        params.end = point();
        params.doors[number()].flag = m_bytes.below(2) != 0;
        return std::make_unique<NUXWallObject>(params);
    }

    ByteReader& m_bytes;
};

QString told(const QMap<QString, std::vector<NuxStandardCheckRule>>& results) {
    QString text;
    for (auto entry = results.cbegin(); entry != results.cend(); ++entry)
        for (const NuxStandardCheckRule& record : *entry) {
            text += entry.key() + ' ' + record.name + ' ' + QString::number(record.handle);
            for (const qint64 handle : record.relatedHandles)
                text += ' ' + QString::number(handle);
            text += '\n';
        }
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    setDriveRoot(QStringLiteral(SOURCE_DATA_DIRECTORY));
    ByteReader bytes(data, size);
    auto database = std::make_unique<UdDbDocument>();
    for (int i = 0; i < kMostObjects && !bytes.isAtEnd(); ++i)
        database->append(SiteMaker(bytes).object());
    UdApDocument* document = UdDocManagerPtr()->open(std::move(database));

    NuxFireStandardCheck& engine = *NUXCheck::instance();
    engine.DoCheck();
    for (const auto& filed : engine.getMapRules())
        for (const NuxStandardCheckRule& record : filed)
            require(record.handle == 0 || document->Database()->hasHandle(record.handle),
                    "a record's element");
    const QString first = told(engine.getMapRules());
    require(!first.isEmpty(), "a site as small as this lacks something");
    engine.DoCheck();
    require(told(engine.getMapRules()) == first, "a check gives the same results again");
    UdDocManagerPtr()->close(document);
    return 0;
}
