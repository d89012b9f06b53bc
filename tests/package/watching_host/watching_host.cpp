#include "watching_host.h"

namespace watch {

std::set<std::string> asked;
std::set<std::string> mistakes;
int bodyDistances = 0;
int outlinesAlive = 0;
int bodiesAlive = 0;
int iteratorsAlive = 0;

void require(bool holds, const char* what) {
    if (!holds)
        mistakes.insert(what);
}

} // namespace watch

namespace hrx {

double GeometryDistance(const CBody* a, const CBody* b, CVec3<double>& onA, CVec3<double>& onB,
                        double tolerance) {
    ASKED("GeometryDistance");

    watch::require(a && b, "the distance of no solid");
    watch::require(tolerance == 0.1, "a distance with another tolerance than 0.1");
    for (const CVec3<double>* point : {&onA, &onB})
        watch::require(point->x == 0 && point->y == 0 && point->z == 0,
                       "a closest point that does not start at 0");
    const auto gap = [](double low, double high, double otherLow, double otherHigh) {
        return std::max({0.0, otherLow - high, low - otherHigh});
    };
    const CExtents3& p = a->box;
    const CExtents3& q = b->box;
    return std::hypot(gap(p.low.x, p.high.x, q.low.x, q.high.x), gap(p.low.y, p.high.y, q.low.y, q.high.y),
                      gap(p.low.z, p.high.z, q.low.z, q.high.z));
}

double BodyDistance(const CBody* a, const CBody* b, CVec3<double>& onA, CVec3<double>& onB,
                    double tolerance) {
    ASKED("BodyDistance");
    ++watch::bodyDistances;
    return GeometryDistance(a, b, onA, onB, tolerance);
}

CPolygon* CreatePolygon(const CVec3<double>* points, int count, bool closed, const CPlane&) {
    ASKED("CreatePolygon");
    watch::require(closed, "an outline that is not closed");
    std::vector<PolyPt2d> corners;
    for (int i = 0; i < count; ++i)
        corners.push_back({points[i].x, points[i].y, 0});
    return new CPolygon(corners);
}

CBody* GBodyBuilder::CylinderBody(const CVec3<double>& bottom, const CVec3<double>& top, double) {
    ASKED("GBodyBuilder::CylinderBody");
    auto body = std::make_unique<CBody>();
    body->add(bottom);
    body->add(top);
    return body.release();
}

CBody* GBodyBuilder::SweepBody(CPolygon* section, const CPlaneCurve3d& path) {
    ASKED("GBodyBuilder::SweepBody");
    watch::require(section, "a tube of no section");
    return CylinderBody(path.start, path.end, 0);
}

EnLoopsState Curve2dlistToCoedgelists(const std::vector<std::unique_ptr<CCurve2d>>& curves,
                                      std::vector<CCoedgeList>& lists, double tolerance) {
    ASKED("Curve2dlistToCoedgelists");
    watch::require(tolerance == 200.0, "curves joined with another tolerance than 200");
    for (const auto& curve : curves)
        lists.emplace_back(curve->edges());
    return kJoined;
}

bool CLoopTreeNode::GenPolygonListByCoedgeList(const std::vector<CCoedgeList>& lists,
                                               std::vector<CPolygon*>& polygons) {
    ASKED("CLoopTreeNode::GenPolygonListByCoedgeList");
    for (const CCoedgeList& list : lists)
        polygons.push_back(new CPolygon(list.edges));
    return true;
}

} // namespace hrx

QString WcharArrayToQString(const wchar_t* text) {
    ASKED("WcharArrayToQString");
    return QString::fromWCharArray(text);
}

QString resolveRootedFileName(const QString& name) {
    ASKED("resolveRootedFileName");
    return QString(name).replace("\\", WATCHING_HOST_DRIVE "/");
}

void UdDbOpenUdDbObject(UdDbObject*& object, UdDbObjectId id, UdDb::OpenMode mode, bool openErased) {
    ASKED("UdDbOpenUdDbObject");
    watch::require(!object && mode == 0 && !openErased, "UdDbOpenUdDbObject other than (null, id, 0, false)");
    object = id.object;
}

UdApDocManager* UdDocManagerPtr() {
    ASKED("UdDocManagerPtr");
    static UdApDocManager manager;
    return &manager;
}

bool NUXCalcFunc::IsNuxStrictlyValid(const hrx::CPolygon* polygon, bool flag) {
    ASKED("NUXCalcFunc::IsNuxStrictlyValid");
    watch::require(flag, "IsNuxStrictlyValid with the flag unset");
    return polygon;
}

/// Refuses what is more than 50 m long, so that the release of a refused body is seen.
bool NUXCalcFunc::IsNuxStrictlyBodyValid(const hrx::CBody* body) {
    ASKED("NUXCalcFunc::IsNuxStrictlyBodyValid");
    return body && body->box.high.x - body->box.low.x < 50000;
}

void NUXBuildPolygon::buildLinePolgonAsTwoPt(hrx::CPolygon*& outline, Point start, Point end, double) {
    ASKED("NUXBuildPolygon::buildLinePolgonAsTwoPt");
    outline->addLoop(hrx::CCoedgeList({{start.x, start.y, 0}, {end.x, end.y, 0}}));
}

void NUXBuildPolygon::buildArcPolygon(hrx::CPolygon*& outline, Point start, Point end, Point, double,
                                      double) {
    ASKED("NUXBuildPolygon::buildArcPolygon");
    outline->addLoop(hrx::CCoedgeList({{start.x, start.y, 0}, {end.x, end.y, 0}}));
}
