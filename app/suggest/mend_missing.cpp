#include "explain/Words.h"
#include "rules/rule_texts.h"
#include "site/element_type_identifiers.h"
#include "site_file/site_classes.h"
#include "suggest/action_text.h"
#include "suggest/mend.h"

#include <algorithm>
#include <cmath>

namespace firecheck {

namespace {

using firestandard::RequiredUse;
using firestandard::RuleRow;

/// What a new facility is, as a site file has it; nothing for one that no footprint makes.
struct Facility {
    const char* className;
    Json use;
    double length; ///< mm; a usual size
    double depth;
};

Json nameOfCode(const char* className, int code) {
    for (const SiteClass& candidate : siteClasses()) {
        if (candidate.name != className)
            continue;
        for (const KeyShape& key : candidate.keys)
            for (const auto& [name, known] : key.names)
                if (key.key == "use" && known == code)
                    return name;
    }
    return code;
}

std::optional<Facility> facilityOf(const RuleRow& row) {
    switch (row.use.of) {
    case RequiredUse::Of::PrefabHouse:
        return Facility{"prefabHouse", nameOfCode("prefabHouse", row.use.code), 12e3, 6e3};
    case RequiredUse::Of::OpenShed:
        return Facility{"openShed", nameOfCode("openShed", row.use.code), 12e3, 8e3};
    case RequiredUse::Of::ClosedHouse:
        return Facility{
            "closedHouse",
            QString::fromWCharArray(row.use.name.data(), static_cast<int>(row.use.name.size())).toStdString(),
            5e3, 4e3};
    case RequiredUse::Of::WastePool:
        return Facility{"wastePool", nameOfCode("wastePool", row.use.code), 4e3, 3e3};
    default:
        return std::nullopt;
    }
}

constexpr double kGrid = 1e3;          ///< mm, between places that are tried
constexpr double kMostPerSide = 300.0; ///< of them; a larger site has a wider grid
constexpr std::size_t kMostTried = 400;
constexpr std::size_t kMostJudged = 6;
constexpr double kBoxAway = 1e3; ///< mm, of a box beside the new facility

struct Spot {
    double x;
    double y;
    double distance; ///< of where it is looked for first
};

bool holds(const hrx::CBox2d& box, const Facility& facility) {
    return box.high.x - box.low.x >= facility.length && box.high.y - box.low.y >= facility.depth;
}

/// Within the walls where they enclose enough, else what the site holds and as far around it as any rule asks
/// to keep away.
hrx::CBox2d searchedBox(const TrialSite& site, const Facility& facility) {
    hrx::CBox2d walls;
    hrx::CBox2d all;
    for (std::size_t i = 0; i < site.size(); ++i) {
        const PlanShape& shape = site.element(i).shape;
        if (shape.paths.empty())
            continue;
        all.add(shape.box);
        if (shape.kind == PlanKind::Wall)
            walls.add(shape.box);
    }
    if (holds(walls, facility))
        return walls;
    if (!(all.low.x <= all.high.x))
        all = {{0.0, 0.0}, {0.0, 0.0}};
    const double margin = facility.length + site.farthestLimit();
    return {{all.low.x - margin, all.low.y - margin}, {all.high.x + margin, all.high.y + margin}};
}

/// Middle of the elements of that class, else of where it is looked for.
hrx::CVec2<double> middleOf(const TrialSite& site, const std::string& className,
                            const hrx::CBox2d& searched) {
    hrx::CVec2<double> sum;
    double count = 0.0;
    for (std::size_t i = 0; i < site.size(); ++i) {
        const TrialElement& element = site.element(i);
        if (element.className != className || element.shape.paths.empty())
            continue;
        sum = sum + (element.shape.box.low + element.shape.box.high) * 0.5;
        count += 1.0;
    }
    return count > 0.0 ? sum * (1.0 / count) : (searched.low + searched.high) * 0.5;
}

/// Multiples of the step, or the middle where none lies between.
std::vector<double> coordinatesBetween(double low, double high, double step) {
    std::vector<double> coordinates;
    for (double at = std::ceil(low / step) * step; at <= high; at += step)
        coordinates.push_back(at);
    if (coordinates.empty())
        coordinates.push_back(std::round((low + high) * 0.5));
    return coordinates;
}

/// A grid, from the middle on; never empty.
std::vector<Spot> spotsOf(const TrialSite& site, const Facility& facility) {
    const hrx::CBox2d searched = searchedBox(site, facility);
    const hrx::CVec2<double> middle = middleOf(site, facility.className, searched);
    const double widest = std::max(searched.high.x - searched.low.x, searched.high.y - searched.low.y);
    const double step = std::ceil(std::max(kGrid, widest / kMostPerSide) / kGrid) * kGrid;
    const auto along = [step](double low, double high, double size) {
        return coordinatesBetween(low + size * 0.5, high - size * 0.5, step);
    };
    const std::vector<double> ys = along(searched.low.y, searched.high.y, facility.depth);
    std::vector<Spot> spots;
    for (const double x : along(searched.low.x, searched.high.x, facility.length))
        for (const double y : ys)
            spots.push_back({x, y, std::hypot(x - middle.x, y - middle.y)});
    std::stable_sort(spots.begin(), spots.end(),
                     [](const Spot& a, const Spot& b) { return a.distance < b.distance; });
    return spots;
}

class FacilitySearch {
public:
    FacilitySearch(Workbench& bench, const Targets& targets, Facility facility)
        : m_bench(bench), m_targets(targets), m_facility(std::move(facility)) {
        m_action.kind = Action::Kind::Add;
    }

    /// By itself where a box is near enough or none is asked for, else with a box of its own.
    std::optional<Proposal> find() {
        std::size_t tried = 0;
        std::size_t verified = 0;
        for (const Spot& spot : spotsOf(m_bench.site(), m_facility)) {
            const Json facility = facilityAt(spot);
            if (!hasRoom(facility))
                continue;
            if (++tried > kMostTried || verified > kMostJudged)
                break;
            for (const Change& change : {Change{{std::nullopt, facility}}, withBox(facility, spot)}) {
                if (change.empty() || !seemsToWork(change, spot))
                    continue;
                ++verified;
                if (auto proposal = m_bench.verified(change, m_action, m_targets))
                    return proposal;
            }
        }
        return std::nullopt;
    }

private:
    Json facilityAt(const Spot& spot) const {
        return {{"class", m_facility.className},
                {"handle", m_bench.site().freeHandle()},
                {"use", m_facility.use},
                {"center", {static_cast<long long>(spot.x), static_cast<long long>(spot.y)}},
                {"length", static_cast<long long>(m_facility.length)},
                {"depth", static_cast<long long>(m_facility.depth)}};
    }

    Change withBox(const Json& facility, const Spot& spot) {
        const Json box = {{"class", "extinguisherBox"},
                          {"handle", m_bench.site().freeHandle() + 1},
                          {"position",
                           {static_cast<long long>(spot.x),
                            static_cast<long long>(spot.y - m_facility.depth * 0.5 - kBoxAway)}}};
        return hasRoom(box) ? Change{{std::nullopt, facility}, {std::nullopt, box}} : Change{};
    }

    bool hasRoom(const Json& object) {
        const auto obstacle = m_bench.ground().obstacleOf(m_bench.site().elementOf(object), std::nullopt);
        if (obstacle)
            m_bench.noteObstacle(*obstacle);
        return !obstacle;
    }

    bool seemsToWork(const Change& change, const Spot& spot) {
        const hrx::CBox2d region{{spot.x - m_facility.length, spot.y - m_facility.length},
                                 {spot.x + m_facility.length, spot.y + m_facility.length}};
        return m_bench.meets(Neighbourhood(m_bench.site(), region, {}).differenceWith(change), m_targets);
    }

    Workbench& m_bench;
    const Targets& m_targets;
    const Facility m_facility;
    Action m_action;
};

} // namespace

std::optional<Proposal> mendMissing(Workbench& bench, const Targets& targets) {
    const RuleRow* row = bench.site().judge().row(*targets.begin());
    auto facility = facilityOf(*row);
    return facility ? FacilitySearch(bench, targets, std::move(*facility)).find() : std::nullopt;
}

QString noPlaceText(const Workbench& bench, const Targets& targets) {
    const auto facility = facilityOf(*bench.site().judge().row(*targets.begin()));
    return facility
               ? firestandard::Words::tr("no free place was found for an object of class %1 and use \"%2\"")
                     .arg(QString(facility->className), useText(facility->use))
               : QString();
}

} // namespace firecheck
