#pragma once

// A host in little code that watches what it is asked for: which operations, with which arguments, and
// whether all that was built is released. Elements are all const, so nothing can write to the model. Outlines
// are measured as their upright boxes, arcs as their chords.

#include <QString>

#include <algorithm>
#include <bitset>
#include <cmath>
#include <cstdint>
#include <map>
#include <memory>
#include <ostream>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace watch {

extern std::set<std::string> asked;    ///< the operations that were asked for
extern std::set<std::string> mistakes; ///< what no host need put up with
extern int bodyDistances;              ///< how many were measured between a road and what stands over it

void require(bool holds, const char* what);

extern int outlinesAlive, bodiesAlive, iteratorsAlive;

template <int& alive> struct Counted {
    Counted() { ++alive; }
    Counted(const Counted&) { ++alive; }
    ~Counted() { --alive; }
};

} // namespace watch

#define ASKED(operation) watch::asked.insert(operation)

namespace hrx {

template <class T> struct CVec2 { T x, y; };
template <class T> struct CVec3 { T x, y, z; };
template <class T> struct CCoord3 {
    CCoord3(const CVec3<T>& o, const CVec3<T>& x, const CVec3<T>& y, const CVec3<T>& z) : origin(o) {
        watch::require(x.x == 1 && y.y == 1 && z.z == 1, "a frame other than the world's");
    }
    CVec3<T> origin;
};
struct PolyPt2d {
    double x, y, bulge;
};
struct CExtents3 {
    CVec3<double> low{1e30, 1e30, 1e30}, high{-1e30, -1e30, -1e30};
};
inline const double g_DistEpsilon = 1e-6;

using Edges = std::vector<PolyPt2d>;

struct CCoedgeList {
    explicit CCoedgeList(Edges edges) : edges(std::move(edges)) {}
    int ClockSign() const {
        ASKED("CCoedgeList::ClockSign");
        return m_sign;
    }
    Edges edges;
    int m_sign = -1; // so that each outline has to be turned
};

struct CPolygon : watch::Counted<watch::outlinesAlive> {
    CPolygon() = default;
    explicit CPolygon(const std::vector<PolyPt2d>& points) : m_loops{CCoedgeList(points)} {}
    explicit CPolygon(const std::vector<CVec2<double>>& points) : m_loops{CCoedgeList(Edges())} {
        for (const auto& point : points)
            m_loops[0].edges.push_back({point.x, point.y, 0.0});
    }
    const CCoedgeList* GetLoop(std::size_t index) const {
        ASKED("CPolygon::GetLoop");
        watch::require(index == 0, "GetLoop of another loop than the first");
        return index < m_loops.size() ? &m_loops[index] : nullptr;
    }
    void addLoop(const CCoedgeList& loop) {
        ASKED("CPolygon::addLoop");
        m_loops.push_back(loop);
    }
    void Reverse() {
        ASKED("CPolygon::Reverse");
        for (CCoedgeList& loop : m_loops)
            loop.m_sign = -loop.m_sign;
    }
    bool IsValid(const std::bitset<16>& checks, std::ostream*) const {
        ASKED("CPolygon::IsValid");
        watch::require(checks == 0x1F, "IsValid with other checks than the five");
        return !m_loops.empty();
    }
    void Free() {
        ASKED("CPolygon::Free");
        if (holders == 0)
            delete this;
    }
    void drop() {
        if (--holders == 0)
            delete this;
    }

    std::vector<CCoedgeList> m_loops;
    int holders = 0;
};

struct CBody : watch::Counted<watch::bodiesAlive> {
    virtual ~CBody() = default;
    void Free() {
        ASKED("CBody::Free");
        delete this;
    }
    CExtents3 GetExtents() const {
        ASKED("CBody::GetExtents");
        return box;
    }
    void add(const CVec3<double>& point) {
        box.low = {std::min(box.low.x, point.x), std::min(box.low.y, point.y), std::min(box.low.z, point.z)};
        box.high = {std::max(box.high.x, point.x), std::max(box.high.y, point.y),
                    std::max(box.high.z, point.z)};
    }
    CExtents3 box;
};

struct CExtrudedBody : CBody {
    CExtrudedBody(const CCoord3<double>& frame, double height, CPolygon* outline, bool flag)
        : m_outline(outline) {
        ASKED("CExtrudedBody::CExtrudedBody");
        watch::require(outline, "a solid of no outline");
        watch::require(flag, "a solid with the flag unset");
        ++m_outline->holders;
        for (const PolyPt2d& point : m_outline->m_loops.at(0).edges) {
            add({point.x, point.y, frame.origin.z});
            add({point.x, point.y, frame.origin.z + height});
        }
    }
    ~CExtrudedBody() override { m_outline->drop(); }
    bool IsValid(const std::bitset<16>& checks, std::ostream*) const {
        ASKED("CExtrudedBody::IsValid");
        watch::require(checks == 0x1F, "IsValid with other checks than the five");
        return true;
    }

private:
    CPolygon* m_outline;
};

double GeometryDistance(const CBody* a, const CBody* b, CVec3<double>& onA, CVec3<double>& onB,
                        double tolerance);
double BodyDistance(const CBody* a, const CBody* b, CVec3<double>& onA, CVec3<double>& onB, double tolerance);

struct CCurve2d {
    explicit CCurve2d(std::vector<CVec2<double>> points) : points(std::move(points)) {}
    virtual ~CCurve2d() = default;
    Edges edges() const {
        ASKED("CCurve2d::edges");
        Edges all;
        for (const auto& point : points)
            all.push_back({point.x, point.y, 1.0});
        return all;
    }
    std::vector<CVec2<double>> points;
};
struct CLine2d : CCurve2d {
    CLine2d(const CVec2<double>& start, const CVec2<double>& end) : CCurve2d({start, end}) {
        ASKED("CLine2d::CLine2d");
    }
};
struct CArc2d : CCurve2d {
    CArc2d(const CVec2<double>& start, const CVec2<double>& end, const CVec2<double>&)
        : CCurve2d({start, end}) {
        ASKED("CArc2d::CArc2d");
    }
    CArc2d(const CVec2<double>& c, double radius, double, double)
        : CCurve2d({{c.x - radius, c.y}, {c.x + radius, c.y}}) {
        ASKED("CArc2d::CArc2d");
    }
};
struct CPlaneCurve3d {
    CPlaneCurve3d(const CVec3<double>& from, const CVec3<double>& to, const CVec3<double>&)
        : start(from), end(to) {
        ASKED("CPlaneCurve3d::CPlaneCurve3d");
    }
    CVec3<double> start, end;
};
struct CPlane {
    bool CreateByPoints(const CVec3<double>* points, int count) {
        ASKED("CPlane::CreateByPoints");
        watch::require(count == 4, "a plane through other than four points");
        m_origin = points[0];
        return true;
    }
    CCoord3<double> GetCoordinate() const {
        ASKED("CPlane::GetCoordinate");
        return {m_origin, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    }

private:
    CVec3<double> m_origin{};
};
CPolygon* CreatePolygon(const CVec3<double>* points, int count, bool closed, const CPlane& plane);

struct GBodyBuilder {
    GBodyBuilder(bool first, bool second) {
        watch::require(first && second, "GBodyBuilder with a flag unset");
    }
    CBody* CylinderBody(const CVec3<double>& bottom, const CVec3<double>& top, double);
    CBody* SweepBody(CPolygon* section, const CPlaneCurve3d& path);
};

enum EnPolygonPolygonPosition { kMeet, kApart };
enum EnCurvePolygonPosition { kCrosses, kOutside };
struct CPositionJudge {
    EnPolygonPolygonPosition GetPolygonPosition(const CPolygon* a, const CPolygon* b) const {
        ASKED("CPositionJudge::GetPolygonPosition");
        watch::require(a && b, "the position of no outline");
        return kMeet;
    }
    EnCurvePolygonPosition GetCurvePolygonPosition(const CCurve2d* curve, const CPolygon* polygon) const {
        ASKED("CPositionJudge::GetCurvePolygonPosition");
        watch::require(curve && polygon, "the position of nothing");
        return kCrosses;
    }
};

enum EnLoopsState { kJoined };
EnLoopsState Curve2dlistToCoedgelists(const std::vector<std::unique_ptr<CCurve2d>>& curves,
                                      std::vector<CCoedgeList>& lists, double tolerance);
struct CLoopTreeNode {
    static bool GenPolygonListByCoedgeList(const std::vector<CCoedgeList>& lists,
                                           std::vector<CPolygon*>& polygons);
};

} // namespace hrx

QString WcharArrayToQString(const wchar_t* text);
QString resolveRootedFileName(const QString& name);

namespace UdDb {
enum OpenMode { kRead };
}

struct UdDbHandle {
    long long GetID() const {
        ASKED("UdDbHandle::GetID");
        return id;
    }
    const long long id = 0;
};

struct UdRxObject {
    virtual ~UdRxObject() = default;
};

struct UdDbObject : virtual UdRxObject {
    UdDbHandle Handle() const {
        ASKED("UdDbObject::Handle");
        return {handle};
    }
    void GetGeomExtents(hrx::CVec3<double>& low, hrx::CVec3<double>& high) const {
        ASKED("UdDbObject::GetGeomExtents");
        low = {-1000, -1000, 100};
        high = {1000, 1000, 200};
    }
    long long handle = 0;
};

struct UdDbObjectId {
    bool IsValid() const {
        ASKED("UdDbObjectId::IsValid");
        return object;
    }
    UdDbHandle Handle() const {
        ASKED("UdDbObjectId::Handle");
        return {object->handle};
    }
    UdDbObject* object = nullptr;
};
void UdDbOpenUdDbObject(UdDbObject*& object, UdDbObjectId id, UdDb::OpenMode mode, bool openErased);

using Objects = std::vector<std::unique_ptr<UdDbObject>>;

struct UdDbObjContainerIterator : watch::Counted<watch::iteratorsAlive> {
    explicit UdDbObjContainerIterator(const Objects& objects) : m_objects(objects) {}
    virtual ~UdDbObjContainerIterator() = default;
    virtual bool Done() const {
        ASKED("UdDbObjContainerIterator::Done");
        return m_index == m_objects.size();
    }
    virtual int GetItem(UdDbObject*& object, UdDb::OpenMode mode, bool openErased) const {
        ASKED("UdDbObjContainerIterator::GetItem");
        watch::require(!object && mode == 0 && !openErased, "GetItem other than (null, 0, false)");
        object = m_objects[m_index].get();
        return 0;
    }
    virtual void Step(bool forwards, bool skipErased) {
        ASKED("UdDbObjContainerIterator::Step");
        watch::require(forwards && skipErased, "Step other than (true, true)");
        ++m_index;
    }

private:
    const Objects& m_objects;
    std::size_t m_index = 0;
};

struct UdDbObjContainer {
    UdDbObjContainerIterator* NewIterator(bool forwards, bool skipErased) const {
        ASKED("UdDbObjContainer::NewIterator");
        watch::require(forwards && skipErased, "NewIterator other than (true, true)");
        return new UdDbObjContainerIterator(objects);
    }
    Objects objects;
};
struct UdDbBlock : UdDbObjContainer {};
struct UdDbDocument {
    UdDbBlock* GetModelSpace() {
        ASKED("UdDbDocument::GetModelSpace");
        return &modelSpace;
    }
    UdDbBlock modelSpace;
};
struct UdApDocument {
    UdDbDocument* Database() {
        ASKED("UdApDocument::Database");
        return &database;
    }
    UdDbDocument database;
};
struct UdApDocManager {
    UdApDocument* CurDocument() {
        ASKED("UdApDocManager::CurDocument");
        return &document;
    }
    UdApDocument document;
};
UdApDocManager* UdDocManagerPtr();

struct UdDbPolyLine {
    void GetPolyPts(std::vector<hrx::PolyPt2d>& points) const {
        ASKED("UdDbPolyLine::GetPolyPts");
        points = {{0, 0, 0}, {1000, 0, 0}, {1000, 1000, 0}, {0, 1000, 0}};
    }
};

/// What every class of element has: a cast by run-time type.
template <class Class, class Parent> struct Castable : Parent {
    using Parent::Parent;
    static Class* Cast(const UdRxObject* object) {
        return dynamic_cast<Class*>(const_cast<UdRxObject*>(object));
    }
};

#define ACCESSOR(Type, owner, name, value)                                                                   \
    Type name() const {                                                                                      \
        ASKED(#owner "::" #name);                                                                            \
        return value;                                                                                        \
    }

struct NUXElementObject : Castable<NUXElementObject, UdDbObject> {
    explicit NUXElementObject(std::wstring identifier = {}) : type(std::move(identifier)) {}
    ACCESSOR(virtual std::wstring, NUXElementObject, getElementType, type)
    const std::wstring type;
};

/// Where an element lies, and how it says so.
struct Place {
    double x = 0, y = 0, length = 2000, depth = 1000;
    std::uint32_t shapeKind = 3;
};

struct NUXBaseObject : Castable<NUXBaseObject, NUXElementObject>, UdDbPolyLine {
    NUXBaseObject(std::wstring identifier, const Place& where)
        : Castable(std::move(identifier)), m_shapeKind(where.shapeKind), place(where) {}
    using Point = hrx::CVec3<double>;
    ACCESSOR(Point, NUXBaseObject, getPtRectCenter, (Point{place.x, place.y, 0}))
    ACCESSOR(double, NUXBaseObject, getRectWidthL, place.length)
    ACCESSOR(double, NUXBaseObject, getRectHigh, place.depth)
    ACCESSOR(double, NUXBaseObject, getRectAngle, 0)
    ACCESSOR(Point, NUXBaseObject, getPtCircleCenter, (Point{place.x, place.y, 0}))
    ACCESSOR(Point, NUXBaseObject, getPtCircleRadir, (Point{place.x + place.length, place.y, 0}))
    ACCESSOR(double, NUXBaseObject, getCircleRad, place.length)
    ACCESSOR(double, NUXBaseObject, getElevation, 0)
    const std::uint32_t m_shapeKind;
    const Place place;
};

enum StairPt { kLeft, kRight, kNowhere };
struct NUXPrefabHouseObject : Castable<NUXPrefabHouseObject, NUXBaseObject> {
    using Castable::Castable;
    ACCESSOR(double, NUXPrefabHouseObject, getDepth, place.depth)
    ACCESSOR(int, NUXPrefabHouseObject, getFloorCount, 3)
    ACCESSOR(StairPt, NUXPrefabHouseObject, getStairPosition, kNowhere)
    ACCESSOR(int, NUXPrefabHouseObject, getIsFB, 0)
    ACCESSOR(int, NUXPrefabHouseObject, houseUse, place.x == 0 ? 0 : 1)
    void getEveryWidth(std::vector<hrx::CVec2<double>>& positions) const {
        ASKED("NUXPrefabHouseObject::getEveryWidth");
        positions = {{0, 0}, {place.length, 0}};
    }
};

struct NUXRoadObject : Castable<NUXRoadObject, NUXBaseObject> {
    NUXRoadObject(std::wstring identifier, const Place& where) : Castable(std::move(identifier), where) {
        m_outline->holders = 1;
    }
    ~NUXRoadObject() override { m_outline->drop(); }
    using PlanPoint = hrx::CVec2<double>;
    ACCESSOR(bool, NUXRoadObject, getIsFireRoad, true)
    ACCESSOR(int, NUXRoadObject, getWidth, 3999)
    ACCESSOR(PlanPoint, NUXRoadObject, getOriginalStartPt, (PlanPoint{place.x, place.y}))
    ACCESSOR(PlanPoint, NUXRoadObject, getOriginalEndPt, (PlanPoint{place.x + place.length, place.y}))
    ACCESSOR(PlanPoint, NUXRoadObject, getOriginalRefPt, (PlanPoint{place.x, place.y + place.length}))
    ACCESSOR(hrx::CPolygon*, NUXRoadObject, getRoadPoly, m_outline)

private:
    hrx::CPolygon* const m_outline = new hrx::CPolygon(
        std::vector<hrx::PolyPt2d>{{place.x - 2000, place.y - 2000, 0}, {place.x + 2000, place.y + 2000, 0}});
};

struct NUXCloseHouseObject : Castable<NUXCloseHouseObject, NUXBaseObject> {
    using Castable::Castable;
    ACCESSOR(std::wstring, NUXCloseHouseObject, closeHouseUse, L"")
};
struct NUXOpenHouseObject : Castable<NUXOpenHouseObject, NUXBaseObject> {
    using Castable::Castable;
    ACCESSOR(int, NUXOpenHouseObject, openHouseUse, 2)
};
struct NUXWastePoolObject : Castable<NUXWastePoolObject, NUXBaseObject> {
    using Castable::Castable;
    ACCESSOR(int, NUXWastePoolObject, getObjectUse, 0)
};
struct NUXYardObject : Castable<NUXYardObject, NUXBaseObject> {
    using Castable::Castable;
};
struct NUXTotalStepDownSubstationObject : Castable<NUXTotalStepDownSubstationObject, NUXBaseObject> {
    using Castable::Castable;
};
struct NUXYardOBJObject : Castable<NUXYardOBJObject, NUXBaseObject> {
    using Castable::Castable;
    bool calculateParam(hrx::CVec2<double>& centre, double& length, double& depth, double& angle) const {
        ASKED("NUXYardOBJObject::calculateParam");
        centre = {place.x, place.y};
        length = place.length;
        depth = place.depth;
        angle = 0;
        return true;
    }
};
struct NUXDoorObject : Castable<NUXDoorObject, NUXBaseObject> {
    using Castable::Castable;
    ACCESSOR(Point, NUXDoorObject, getPosition, (Point{place.x, place.y, 0}))
    ACCESSOR(int, NUXDoorObject, getPlankWidth, 900)
    ACCESSOR(int, NUXDoorObject, getDoorPostSectionWidth, 50)
    ACCESSOR(int, NUXDoorObject, getDoorPostSectionHeight, 100)
    ACCESSOR(double, NUXDoorObject, getAngle, 0)
};
struct DoorData {
    bool flag;
    UdDbObjectId doorId;
};
struct NUXWallObject : Castable<NUXWallObject, NUXElementObject> {
    using PlanPoint = hrx::CVec2<double>;
    using Doors = std::map<double, DoorData>;
    NUXWallObject(std::wstring identifier, PlanPoint from, PlanPoint to, Doors all)
        : Castable(std::move(identifier)), start(from), end(to), doors(std::move(all)) {}
    ACCESSOR(PlanPoint, NUXWallObject, getStartPosition, start)
    ACCESSOR(PlanPoint, NUXWallObject, getEndPosition, end)
    ACCESSOR(Doors, NUXWallObject, getAssociationDoor, doors)
    const PlanPoint start, end;
    const Doors doors;
};
struct NUXServiceCableObject : Castable<NUXServiceCableObject, NUXBaseObject> {
    using Castable::Castable;
    using PlanPoint = hrx::CVec2<double>;
    ACCESSOR(bool, NUXServiceCableObject, getIsStraight, m_shapeKind == 9)
    ACCESSOR(PlanPoint, NUXServiceCableObject, getStartPt, (PlanPoint{place.x, place.y}))
    ACCESSOR(PlanPoint, NUXServiceCableObject, getEndPt, (PlanPoint{place.x + place.length, place.y}))
    ACCESSOR(PlanPoint, NUXServiceCableObject, getMiddlePt, (PlanPoint{place.x, place.y + place.length}))
    ACCESSOR(double, NUXServiceCableObject, getServiceCableStartElevation, 3)
    ACCESSOR(double, NUXServiceCableObject, getServiceCableEndElevation, 3)
    ACCESSOR(double, NUXServiceCableObject, getServiceCableRadius, 10)
};
struct NUXTowerCraneObject : Castable<NUXTowerCraneObject, NUXElementObject> {
    using Castable::Castable;
    using Body = std::unique_ptr<hrx::CBody>;
    ACCESSOR(Body, NUXTowerCraneObject, getTowerQianBiBody, part())
    ACCESSOR(Body, NUXTowerCraneObject, getTowerHouBiBody, part())
    ACCESSOR(Body, NUXTowerCraneObject, getTowerBaseBody, part())

private:
    /// All parts touch the roads at the origin.
    static Body part() {
        return Body(hrx::GBodyBuilder(true, true).CylinderBody({0, 0, 0}, {0, 0, 9000}, 100));
    }
};
struct NUXPosterObject : Castable<NUXPosterObject, NUXElementObject> {
    NUXPosterObject(std::wstring identifier, int type) : Castable(std::move(identifier)), drawType(type) {}
    using PlanPoint = hrx::CVec2<double>;
    ACCESSOR(int, NUXPosterObject, getDrawType, drawType)
    ACCESSOR(PlanPoint, NUXPosterObject, getFirstPoint, (PlanPoint{0, 0}))
    ACCESSOR(PlanPoint, NUXPosterObject, getSecondPoint, (PlanPoint{500, 0}))
    ACCESSOR(double, NUXPosterObject, getHeight, 2000)
    ACCESSOR(double, NUXPosterObject, getElevation, 1)
    const int drawType;
};

struct UdDb3dsImage : UdDbObject {
    hrx::CVec3<double> GetPosition() const {
        ASKED("UdDb3dsImage::GetPosition");
        return {0, 0, 0};
    }
};
struct NUX3dsBaseObject : Castable<NUX3dsBaseObject, UdDb3dsImage> {
    ACCESSOR(virtual std::wstring, NUX3dsBaseObject, getModelKind, L"NUX_EDO_TYPE_FIREEXTINGUISHERBOX")
    ACCESSOR(double, NUX3dsBaseObject, getAngle, 0)
};
struct NUX3dsObject : Castable<NUX3dsObject, NUX3dsBaseObject> {
    void calculateWidthAndHeight(double& width, double& height) const {
        ASKED("NUX3dsObject::calculateWidthAndHeight");
        width = 500;
        height = 300;
    }
};

struct NUXRectParam {
    NUXRectParam(const hrx::CVec2<double>& centre, double length, double depth, double angle)
        : m_centre(centre), m_length(length), m_depth(depth), m_angle(angle) {}
    ACCESSOR(hrx::CVec2<double>, NUXRectParam, centre, m_centre)
    ACCESSOR(double, NUXRectParam, length, m_length)
    ACCESSOR(double, NUXRectParam, depth, m_depth)
    ACCESSOR(double, NUXRectParam, angle, m_angle)

private:
    hrx::CVec2<double> m_centre;
    double m_length, m_depth, m_angle;
};
struct NUXCalcFunc {
    static bool IsNuxStrictlyValid(const hrx::CPolygon* polygon, bool flag);
    static bool IsNuxStrictlyBodyValid(const hrx::CBody* body);
};
struct NUXBuildPolygon {
    using Point = hrx::CVec2<double>;
    static void buildLinePolgonAsTwoPt(hrx::CPolygon*& outline, Point start, Point end, double width);
    static void buildArcPolygon(hrx::CPolygon*& outline, Point start, Point end, Point through, double width,
                                double offset);
};
