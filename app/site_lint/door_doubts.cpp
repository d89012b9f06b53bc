#include "geometry/CVec2.h"
#include "site_file/site_keys.h"
#include "site_lint/SiteDoubts.h"
#include "text/words.h"

#include <QByteArray>

#include <cmath>
#include <map>

namespace firecheck {

namespace {

/// Doors stand this near the place that their wall gives; half of an opening, and the thickness of a wall.
constexpr double kDoorTolerance = 500.0;

using Point = hrx::CVec2<double>;

Point pointOf(const Json& value) {
    return {value[0].get<double>(), value[1].get<double>()};
}

std::string metres(double millimetres) {
    return QByteArray::number(millimetres * 0.001, 'f', 2).toStdString() + " m";
}

class WallDoubter {
public:
    WallDoubter(const DoubtedSite& site, SiteDoubts& doubts) : m_site(site), m_doubts(doubts) {
        for (std::size_t i = 0; i < site.objects().size(); ++i)
            if (site.objects()[i].at(kClassKey) == "door")
                m_doors[site.objects()[i].at("handle").get<long long>()] = i;
    }

    void doubtWall(std::size_t wallIndex) {
        const Json& wall = m_site.objects()[wallIndex];
        const auto entries = wall.find("doors");
        for (std::size_t i = 0; entries != wall.end() && i < entries->size(); ++i)
            if (!(*entries)[i].value("flagged", false))
                doubtEntry(wall, (*entries)[i],
                           DoubtedSite::pointerTo(wallIndex, "/doors/" + std::to_string(i)));
    }

private:
    void doubtEntry(const Json& wall, const Json& entry, const std::string& pointer) {
        const Point start = pointOf(wall.at("start"));
        const Point end = pointOf(wall.at("end"));
        const double length = std::hypot(end.x - start.x, end.y - start.y);
        const double distance = entry.at("distance").get<double>();
        if (distance < 0.0 || distance > length) {
            m_doubts.push_back(
                {pointer + "/distance",
                 "door-off-wall",
                 filled(Words::tr("The door is %1 along a wall of %2."), metres(distance), metres(length)),
                 {}});
            return;
        }
        const auto door =
            entry.at("door").is_null() ? m_doors.end() : m_doors.find(entry.at("door").get<long long>());
        if (door == m_doors.end() || length == 0.0)
            return;
        const Json& object = m_site.objects()[door->second];
        const Point own = pointOf(object.at("position"));
        const double share = distance / length;
        const double apart = std::hypot(start.x + (end.x - start.x) * share - own.x,
                                        start.y + (end.y - start.y) * share - own.y);
        const double tolerance = std::max(kDoorTolerance, object.value("leafWidth", 1000.0) * 0.5) +
                                 std::abs(entry.value("offset", 0.0));
        if (apart > tolerance)
            m_doubts.push_back({pointer + "/distance",
                                "door-off-wall",
                                filled(Words::tr("%1 stands %2 from where this wall says."),
                                       DoubtedSite::mention(object), metres(apart)),
                                {}});
    }

    const DoubtedSite& m_site;
    SiteDoubts& m_doubts;
    std::map<long long, std::size_t> m_doors;
};

} // namespace

void doubtDoors(const DoubtedSite& site, SiteDoubts& doubts) {
    WallDoubter walls(site, doubts);
    for (std::size_t i = 0; i < site.objects().size(); ++i)
        if (site.objects()[i].at(kClassKey) == "wall")
            walls.doubtWall(i);
}

} // namespace firecheck
