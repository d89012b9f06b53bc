#include "report/plan/plan_shapes.h"
#include "site_file/site_keys.h"
#include "site_lint/SiteDoubts.h"
#include "site_lint/outline_overlap.h"
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
constexpr double kLargestSite = 5000e3;

/// The footprint of an object of the site.
struct Footprint {
    std::size_t object = 0;
    PlanOutline outline;
};

/// Elements of which no two can have the same ground: not models, cranes, roads and what hangs above.
bool standsAlone(const PlanShape& shape, const std::string& className) {
    return className != "crossing" && !shape.paths.empty() && shape.paths.back().isClosed &&
           (shape.kind == PlanKind::Yard || shape.kind == PlanKind::House || shape.kind == PlanKind::Shed ||
            shape.kind == PlanKind::Station || className == "wastePool");
}

std::string wholeMetres(double millimetres) {
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
        std::sort(m_footprints.begin(), m_footprints.end(), [](const Footprint& a, const Footprint& b) {
            return a.outline.box.low.x < b.outline.box.low.x;
        });
        for (auto a = m_footprints.begin(); a != m_footprints.end(); ++a)
            for (auto b = a + 1; b != m_footprints.end() && startsWithin(*b, *a); ++b)
                if (standInEachOther(a->outline, b->outline, kOverlapTolerance))
                    addOverlap(a->object, b->object);
    }

    void doubtRemote() {
        if (m_middles.size() < 3)
            return; // of two, none is the one that is off
        const Point middle{median(&Point::x), median(&Point::y)};
        for (const auto& [index, place] : m_middles) {
            const double apart = std::hypot(place.x - middle.x, place.y - middle.y);
            if (apart > kLargestSite)
                m_doubts.push_back({DoubtedSite::pointerTo(index),
                                    "remote",
                                    filled(Words::tr("The object stands %1 from the middle of the site."),
                                           wholeMetres(apart)),
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
        constexpr std::size_t longest = 1000;
        // A house's stairs are drawn below its footprint.
        PlanOutline outline = planOutlineOf(shape.paths.back());
        if (outline.corners.size() <= longest)
            m_footprints.push_back({index, std::move(outline)});
    }

    static bool startsWithin(const Footprint& later, const Footprint& earlier) {
        return later.outline.box.low.x < earlier.outline.box.high.x;
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
    std::vector<Footprint> m_footprints;
    std::vector<std::pair<std::size_t, Point>> m_middles;
};

} // namespace

void doubtPlaces(const DoubtedSite& site, SiteDoubts& doubts) {
    PlaceDoubter places(site, doubts);
    places.doubtOverlaps();
    places.doubtRemote();
}

} // namespace firecheck
