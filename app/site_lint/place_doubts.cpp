#include "report/plan/plan_shapes.h"
#include "site_file/site_keys.h"
#include "site_lint/SiteDoubts.h"
#include "text/words.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>

namespace firecheck {

namespace {

using Point = hrx::CVec2<double>;

/// Elements may stand this deep in each other before it is doubted: walls shared, outlines drawn by hand.
constexpr double kOverlapTolerance = 100.0;
/// No site reaches this far from its middle.
constexpr double kFarthest = 5000e3;

/// An outline in plan, arcs as chords.
struct Outline {
    std::size_t object = 0;
    std::vector<Point> corners;
    hrx::CBox2d box;
};

void appendChords(const hrx::Edge2d& edge, int halvings, std::vector<Point>& corners) {
    if (halvings == 0 || !edge.isArc()) {
        corners.push_back(edge.start);
        return;
    }
    const auto [first, second] = edge.halves();
    appendChords(first, halvings - 1, corners);
    appendChords(second, halvings - 1, corners);
}

double signedDistance(const Point& start, const Point& end, const Point& point) {
    const double length = std::hypot(end.x - start.x, end.y - start.y);
    const double turn = (end.x - start.x) * (point.y - start.y) - (end.y - start.y) * (point.x - start.x);
    return length > 0.0 ? turn / length : 0.0;
}

/// Whether two edges cross, each end beyond the tolerance on its own side of the other.
bool crossDeeply(const Point& a, const Point& b, const Point& c, const Point& d) {
    const auto apart = [](double first, double second) {
        return std::min(std::abs(first), std::abs(second)) > kOverlapTolerance &&
               (first < 0.0) != (second < 0.0);
    };
    return apart(signedDistance(c, d, a), signedDistance(c, d, b)) &&
           apart(signedDistance(a, b, c), signedDistance(a, b, d));
}

double distanceTo(const Point& start, const Point& end, const Point& point) {
    const double dx = end.x - start.x;
    const double dy = end.y - start.y;
    const double square = dx * dx + dy * dy;
    double share = square > 0.0 ? ((point.x - start.x) * dx + (point.y - start.y) * dy) / square : 0.0;
    share = std::clamp(share, 0.0, 1.0);
    return std::hypot(start.x + dx * share - point.x, start.y + dy * share - point.y);
}

bool isDeepInside(const Point& point, const Outline& outline) {
    bool isInside = false;
    const auto& corners = outline.corners;
    for (std::size_t i = 0, j = corners.size() - 1; i < corners.size(); j = i++) {
        const Point& a = corners[i];
        const Point& b = corners[j];
        if (distanceTo(a, b, point) <= kOverlapTolerance)
            return false;
        if ((a.y > point.y) != (b.y > point.y) && point.x < (b.x - a.x) * (point.y - a.y) / (b.y - a.y) + a.x)
            isInside = !isInside;
    }
    return isInside;
}

/// Corners and the middles of edges, so that elements drawn twice at one place are found by their middle.
std::vector<Point> probesOf(const Outline& outline) {
    std::vector<Point> probes = outline.corners;
    Point middle{0.0, 0.0};
    for (std::size_t i = 0; i < outline.corners.size(); ++i) {
        const Point& a = outline.corners[i];
        const Point& b = outline.corners[(i + 1) % outline.corners.size()];
        probes.push_back({(a.x + b.x) * 0.5, (a.y + b.y) * 0.5});
        middle = {middle.x + a.x / double(outline.corners.size()),
                  middle.y + a.y / double(outline.corners.size())};
    }
    if (isDeepInside(middle, outline))
        probes.push_back(middle);
    return probes;
}

bool overlap(const Outline& a, const Outline& b) {
    for (const auto& [inner, outer] : {std::pair(&a, &b), std::pair(&b, &a)})
        for (const Point& probe : probesOf(*inner))
            if (isDeepInside(probe, *outer))
                return true;
    for (std::size_t i = 0; i < a.corners.size(); ++i)
        for (std::size_t j = 0; j < b.corners.size(); ++j)
            if (crossDeeply(a.corners[i], a.corners[(i + 1) % a.corners.size()], b.corners[j],
                            b.corners[(j + 1) % b.corners.size()]))
                return true;
    return false;
}

/// Elements of which no two can have the same ground: not models, cranes, roads and what hangs above.
bool standsAlone(const PlanShape& shape, const std::string& className) {
    return className != "crossing" && !shape.paths.empty() && shape.paths.back().isClosed &&
           (shape.kind == PlanKind::Yard || shape.kind == PlanKind::House || shape.kind == PlanKind::Shed ||
            shape.kind == PlanKind::Station || className == "wastePool");
}

std::string metres(double millimetres) {
    return QByteArray::number(millimetres * 0.001, 'f', 0).toStdString() + " m";
}

class PlaceDoubter {
public:
    PlaceDoubter(const DoubtedSite& site, SiteDoubts& doubts) : m_site(site), m_doubts(doubts) {
        for (std::size_t i = 0; i < site.objects().size(); ++i)
            if (const UdDbObject* object = site.opened(site.objects()[i]))
                add(i, planShapeOf(*object));
    }

    void doubtOverlaps() {
        std::sort(m_outlines.begin(), m_outlines.end(),
                  [](const Outline& a, const Outline& b) { return a.box.low.x < b.box.low.x; });
        for (std::size_t i = 0; i < m_outlines.size(); ++i)
            for (std::size_t j = i + 1; j < m_outlines.size() && startsWithin(m_outlines[j], m_outlines[i]);
                 ++j)
                if (m_outlines[j].box.low.y < m_outlines[i].box.high.y &&
                    m_outlines[i].box.low.y < m_outlines[j].box.high.y &&
                    overlap(m_outlines[i], m_outlines[j]))
                    addOverlap(m_outlines[i].object, m_outlines[j].object);
    }

    void doubtRemote() {
        if (m_middles.size() < 3)
            return; // of two, none is the one that is off
        const Point middle{median(&Point::x), median(&Point::y)};
        for (const auto& [index, place] : m_middles) {
            const double apart = std::hypot(place.x - middle.x, place.y - middle.y);
            if (apart > kFarthest)
                m_doubts.push_back(
                    {DoubtedSite::pointerTo(index),
                     "remote",
                     filled(Words::tr("The object stands %1 from the middle of the site."), metres(apart)),
                     {}});
        }
    }

private:
    void add(std::size_t index, const PlanShape& shape) {
        if (shape.paths.empty())
            return;
        m_middles.push_back(
            {index,
             {(shape.box.low.x + shape.box.high.x) * 0.5, (shape.box.low.y + shape.box.high.y) * 0.5}});
        if (!standsAlone(shape, m_site.objects()[index].at(kClassKey).get<std::string>()))
            return;
        constexpr int halvings = 3;
        constexpr std::size_t longest = 1000;
        Outline outline{index, {}, shape.box};
        const PlanPath& footprint = shape.paths.back(); // a house's stairs are drawn below it
        for (const hrx::Edge2d& edge : footprint.edges)
            appendChords(edge, halvings, outline.corners);
        if (outline.corners.size() <= longest)
            m_outlines.push_back(std::move(outline));
    }

    static bool startsWithin(const Outline& later, const Outline& earlier) {
        return later.box.low.x < earlier.box.high.x;
    }

    void addOverlap(std::size_t a, std::size_t b) {
        m_doubts.push_back({DoubtedSite::pointerTo(std::max(a, b)),
                            "overlap",
                            filled(Words::tr("The object stands in %1."),
                                   DoubtedSite::mention(m_site.objects()[std::min(a, b)])),
                            {}});
    }

    double median(double Point::*coordinate) const {
        std::vector<double> values;
        for (const auto& [index, place] : m_middles)
            values.push_back(place.*coordinate);
        const auto half = values.begin() + std::ptrdiff_t(values.size() / 2);
        std::nth_element(values.begin(), half, values.end());
        return *half;
    }

    const DoubtedSite& m_site;
    SiteDoubts& m_doubts;
    std::vector<Outline> m_outlines;
    std::vector<std::pair<std::size_t, Point>> m_middles;
};

} // namespace

void doubtPlaces(const DoubtedSite& site, SiteDoubts& doubts) {
    PlaceDoubter places(site, doubts);
    places.doubtOverlaps();
    places.doubtRemote();
}

} // namespace firecheck
