#pragma once

// A host in the least code: objects cast by RTTI, and every outline measured as its upright box.

#include <QString>

#include <algorithm>
#include <bitset>
#include <cmath>
#include <cstdint>
#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace hrx {

template <class T> struct CVec2 { T x{}, y{}; };
template <class T> struct CVec3 { T x{}, y{}, z{}; };
template <class T> struct CCoord3 { CVec3<T> origin; };
struct PolyPt2d {
    double x, y, bulge;
};
struct CExtents3 {
    CVec3<double> low, high;
};
inline const double g_DistEpsilon = 1e-6;

using Edges = std::vector<PolyPt2d>;

struct CCoedgeList {
    explicit CCoedgeList(Edges edges) : edges(std::move(edges)) {}
    int ClockSign() const { return 1; }
    Edges edges;
};

struct CPolygon {
    CPolygon() = default;
    explicit CPolygon(const std::vector<PolyPt2d>& points) : m_loops{CCoedgeList(points)} {}
    explicit CPolygon(const std::vector<CVec2<double>>& points) : m_loops{CCoedgeList({})} {
        for (const auto& point : points)
            m_loops[0].edges.push_back({point.x, point.y, 0.0});
    }
    const CCoedgeList* GetLoop(std::size_t index) const {
        return index < m_loops.size() ? &m_loops[index] : nullptr;
    }
    void addLoop(const CCoedgeList& loop) { m_loops.push_back(loop); }
    void Reverse() {}
    void Free() {}
    bool IsValid(const std::bitset<16>&, std::ostream*) const { return !m_loops.empty(); }

private:
    std::vector<CCoedgeList> m_loops;
};

struct CBody {
    virtual ~CBody() = default;
    virtual CExtents3 GetExtents() const = 0;
};

struct CExtrudedBody : CBody {
    CExtrudedBody(const CCoord3<double>& frame, double height, CPolygon* outline, bool)
        : m_box{{1e30, 1e30, frame.origin.z}, {-1e30, -1e30, frame.origin.z + height}} {
        for (const PolyPt2d& point : outline->GetLoop(0)->edges) {
            m_box.low = {std::min(m_box.low.x, point.x), std::min(m_box.low.y, point.y), m_box.low.z};
            m_box.high = {std::max(m_box.high.x, point.x), std::max(m_box.high.y, point.y), m_box.high.z};
        }
    }
    CExtents3 GetExtents() const override { return m_box; }
    bool IsValid(const std::bitset<16>&, std::ostream*) const { return true; }

private:
    CExtents3 m_box;
};

inline double GeometryDistance(const CBody* a, const CBody* b, CVec3<double>&, CVec3<double>&, double) {
    const CExtents3 p = a->GetExtents();
    const CExtents3 q = b->GetExtents();
    const auto gap = [](double low, double high, double otherLow, double otherHigh) {
        return std::max({0.0, otherLow - high, low - otherHigh});
    };
    return std::hypot(gap(p.low.x, p.high.x, q.low.x, q.high.x), gap(p.low.y, p.high.y, q.low.y, q.high.y),
                      gap(p.low.z, p.high.z, q.low.z, q.high.z));
}
inline double BodyDistance(const CBody* a, const CBody* b, CVec3<double>& onA, CVec3<double>& onB,
                           double tolerance) {
    return GeometryDistance(a, b, onA, onB, tolerance);
}

struct CCurve2d {
    virtual ~CCurve2d() = default;
    Edges edges() const { return {}; }
};
struct CLine2d : CCurve2d {
    CLine2d(const CVec2<double>&, const CVec2<double>&) {}
};
struct CArc2d : CCurve2d {
    CArc2d(const CVec2<double>&, const CVec2<double>&, const CVec2<double>&) {}
    CArc2d(const CVec2<double>&, double, double, double) {}
};
struct CPlaneCurve3d {
    CPlaneCurve3d(const CVec3<double>&, const CVec3<double>&, const CVec3<double>&) {}
};
struct CPlane {
    bool CreateByPoints(const CVec3<double>*, int) { return false; }
    CCoord3<double> GetCoordinate() const { return {}; }
};
inline CPolygon* CreatePolygon(const CVec3<double>*, int, bool, const CPlane&) {
    return nullptr;
}

struct GBodyBuilder {
    GBodyBuilder(bool, bool) {}
    CBody* CylinderBody(const CVec3<double>&, const CVec3<double>&, double) { return nullptr; }
    CBody* SweepBody(CPolygon*, const CPlaneCurve3d&) { return nullptr; }
};

enum EnPolygonPolygonPosition { kMeet, kApart };
enum EnCurvePolygonPosition { kCrosses, kOutside };
struct CPositionJudge {
    EnPolygonPolygonPosition GetPolygonPosition(const CPolygon*, const CPolygon*) const { return kApart; }
    EnCurvePolygonPosition GetCurvePolygonPosition(const CCurve2d*, const CPolygon*) const {
        return kOutside;
    }
};

enum EnLoopsState { kJoined };
inline EnLoopsState Curve2dlistToCoedgelists(const std::vector<std::unique_ptr<CCurve2d>>&,
                                             std::vector<CCoedgeList>&, double) {
    return kJoined;
}
struct CLoopTreeNode {
    static bool GenPolygonListByCoedgeList(const std::vector<CCoedgeList>&, std::vector<CPolygon*>&) {
        return false;
    }
};

} // namespace hrx

inline QString WcharArrayToQString(const wchar_t* text) {
    return QString::fromWCharArray(text);
}
inline QString resolveRootedFileName(const QString& name) {
    return QString(name).replace("\\", TINY_HOST_DRIVE "/");
}

namespace UdDb {
enum OpenMode { kForRead };
}

struct UdDbHandle {
    long long GetID() const { return id; }
    long long id = 0;
};

struct UdRxObject {
    virtual ~UdRxObject() = default;
};

struct UdDbObject : virtual UdRxObject {
    UdDbHandle Handle() const { return {handle}; }
    void GetGeomExtents(hrx::CVec3<double>&, hrx::CVec3<double>&) const {}
    long long handle = 0;
};

struct UdDbObjectId {
    bool IsValid() const { return object != nullptr; }
    UdDbHandle Handle() const { return object ? object->Handle() : UdDbHandle(); }
    UdDbObject* object = nullptr;
};
inline void UdDbOpenUdDbObject(UdDbObject*& object, UdDbObjectId id, UdDb::OpenMode, bool) {
    object = id.object;
}

using Objects = std::vector<std::unique_ptr<UdDbObject>>;

struct UdDbObjContainerIterator {
    explicit UdDbObjContainerIterator(const Objects& objects) : m_objects(objects) {}
    virtual ~UdDbObjContainerIterator() = default;
    virtual bool Done() const { return m_index == m_objects.size(); }
    virtual void GetItem(UdDbObject*& object, UdDb::OpenMode, bool) const {
        object = m_objects[m_index].get();
    }
    virtual void Step(bool, bool) { ++m_index; }

private:
    const Objects& m_objects;
    std::size_t m_index = 0;
};

struct UdDbObjContainer {
    UdDbObjContainerIterator* NewIterator(bool, bool) const { return new UdDbObjContainerIterator(objects); }
    Objects objects;
};
struct UdDbBlock : UdDbObjContainer {};
struct UdDbDocument {
    UdDbBlock* GetModelSpace() { return &modelSpace; }
    UdDbBlock modelSpace;
};
struct UdApDocument {
    UdDbDocument* Database() { return &database; }
    UdDbDocument database;
};
struct UdApDocManager {
    UdApDocument* CurDocument() { return &document; }
    UdApDocument document;
};
inline UdApDocManager* UdDocManagerPtr() {
    static UdApDocManager manager;
    return &manager;
}

struct UdDbPolyLine {
    void GetPolyPts(std::vector<hrx::PolyPt2d>& points) const { points.clear(); }
};

/// What every class of element has: a cast by run-time type.
template <class Class, class Parent> struct Castable : Parent {
    static Class* Cast(const UdRxObject* object) {
        return dynamic_cast<Class*>(const_cast<UdRxObject*>(object));
    }
};

struct NUXElementObject : Castable<NUXElementObject, UdDbObject> {
    virtual std::wstring getElementType() const { return type; }
    std::wstring type;
};

enum NUXShapeKind : std::uint32_t {
    kRectangleShape = 3,
    kPolylineShape = 4,
    kCircleShape = 5,
    kStraightShape = 9,
    kArcShape = 10,
};

struct NUXBaseObject : Castable<NUXBaseObject, NUXElementObject>, UdDbPolyLine {
    hrx::CVec3<double> getPtRectCenter() const { return centre; }
    double getRectWidthL() const { return length; }
    double getRectHigh() const { return depth; }
    double getRectAngle() const { return 0.0; }
    hrx::CVec3<double> getPtCircleCenter() const { return {}; }
    hrx::CVec3<double> getPtCircleRadir() const { return {}; }
    double getCircleRad() const { return 0.0; }
    double getElevation() const { return 0.0; }
    std::uint32_t m_shapeKind = kRectangleShape;
    hrx::CVec3<double> centre;
    double length = 0.0;
    double depth = 0.0;
};

enum StairPt { kStairAtLeftEnd, kStairAtRightEnd, kNoStair, kStairAtBothEnds, kStairAlongSide };
struct NUXPrefabHouseObject : Castable<NUXPrefabHouseObject, NUXBaseObject> {
    double getDepth() const { return depth; }
    int getFloorCount() const { return 1; }
    StairPt getStairPosition() const { return kNoStair; }
    int getIsFB() const { return 0; }
    int houseUse() const { return 0; }
    void getEveryWidth(std::vector<hrx::CVec2<double>>&) const {}
};

struct NUXRoadObject : Castable<NUXRoadObject, NUXBaseObject> {
    bool getIsFireRoad() const { return true; }
    int getWidth() const { return 3999; }
    hrx::CVec2<double> getOriginalStartPt() const { return {}; }
    hrx::CVec2<double> getOriginalEndPt() const { return {}; }
    hrx::CVec2<double> getOriginalRefPt() const { return {}; }
    hrx::CPolygon* getRoadPoly() const { return nullptr; }
};

struct NUXCloseHouseObject : Castable<NUXCloseHouseObject, NUXBaseObject> {
    std::wstring closeHouseUse() const { return {}; }
};
struct NUXOpenHouseObject : Castable<NUXOpenHouseObject, NUXBaseObject> {
    int openHouseUse() const { return 2; }
};
struct NUXWastePoolObject : Castable<NUXWastePoolObject, NUXBaseObject> {
    int getObjectUse() const { return 0; }
};
struct NUXYardObject : Castable<NUXYardObject, NUXBaseObject> {};
struct NUXTotalStepDownSubstationObject : Castable<NUXTotalStepDownSubstationObject, NUXBaseObject> {};
struct NUXYardOBJObject : Castable<NUXYardOBJObject, NUXBaseObject> {
    bool calculateParam(hrx::CVec2<double>&, double&, double&, double&) const { return false; }
};
struct NUXDoorObject : Castable<NUXDoorObject, NUXBaseObject> {
    hrx::CVec3<double> getPosition() const { return {}; }
    int getPlankWidth() const { return 0; }
    int getDoorPostSectionWidth() const { return 0; }
    int getDoorPostSectionHeight() const { return 0; }
    double getAngle() const { return 0.0; }
};
struct DoorData {
    bool flag;
    UdDbObjectId doorId;
};
struct NUXWallObject : Castable<NUXWallObject, NUXElementObject> {
    hrx::CVec2<double> getStartPosition() const { return {}; }
    hrx::CVec2<double> getEndPosition() const { return {}; }
    std::map<double, DoorData> getAssociationDoor() const { return {}; }
};
struct NUXServiceCableObject : Castable<NUXServiceCableObject, NUXBaseObject> {
    bool getIsStraight() const { return true; }
    hrx::CVec2<double> getStartPt() const { return {}; }
    hrx::CVec2<double> getEndPt() const { return {}; }
    hrx::CVec2<double> getMiddlePt() const { return {}; }
    double getServiceCableStartElevation() const { return 0.0; }
    double getServiceCableEndElevation() const { return 0.0; }
    double getServiceCableRadius() const { return 0.0; }
};
struct NUXTowerCraneObject : Castable<NUXTowerCraneObject, NUXElementObject> {
    std::unique_ptr<hrx::CBody> getTowerQianBiBody() const { return nullptr; }
    std::unique_ptr<hrx::CBody> getTowerHouBiBody() const { return nullptr; }
    std::unique_ptr<hrx::CBody> getTowerBaseBody() const { return nullptr; }
};
struct NUXPosterObject : Castable<NUXPosterObject, NUXElementObject> {
    int getDrawType() const { return 0; }
    hrx::CVec2<double> getFirstPoint() const { return {}; }
    hrx::CVec2<double> getSecondPoint() const { return {}; }
    double getHeight() const { return 0.0; }
    double getElevation() const { return 0.0; }
};

struct UdDb3dsImage : UdDbObject {
    hrx::CVec3<double> GetPosition() const { return {}; }
};
struct NUX3dsBaseObject : Castable<NUX3dsBaseObject, UdDb3dsImage> {
    virtual std::wstring getModelKind() const { return {}; }
    double getAngle() const { return 0.0; }
};
struct NUX3dsObject : Castable<NUX3dsObject, NUX3dsBaseObject> {
    void calculateWidthAndHeight(double&, double&) const {}
};

struct NUXRectParam {
    NUXRectParam(const hrx::CVec2<double>& centre, double length, double depth, double angle)
        : m_centre(centre), m_length(length), m_depth(depth), m_angle(angle) {}
    hrx::CVec2<double> centre() const { return m_centre; }
    double length() const { return m_length; }
    double depth() const { return m_depth; }
    double angle() const { return m_angle; }

private:
    hrx::CVec2<double> m_centre;
    double m_length, m_depth, m_angle;
};
struct NUXCalcFunc {
    static bool IsNuxStrictlyValid(const hrx::CPolygon* polygon, bool) { return polygon != nullptr; }
    static bool IsNuxStrictlyBodyValid(const hrx::CBody* body) { return body != nullptr; }
};
struct NUXBuildPolygon {
    static void buildLinePolgonAsTwoPt(hrx::CPolygon*&, hrx::CVec2<double>, hrx::CVec2<double>, double) {}
    static void buildArcPolygon(hrx::CPolygon*&, hrx::CVec2<double>, hrx::CVec2<double>, hrx::CVec2<double>,
                                double, double) {}
};
