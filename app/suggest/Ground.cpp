#include "suggest/Ground.h"

#include <algorithm>

namespace firecheck {

namespace {

/// What lines and outlines drawn side by side have in common without standing in each other, mm.
constexpr double kTolerance = 1.0;

/// What a crane stands on is drawn last, and so is a house without its stairs.
PlanOutline groundOf(const TrialElement& element) {
    return element.shape.paths.empty() ? PlanOutline() : planOutlineOf(element.shape.paths.back());
}

bool holdsGround(const TrialElement& element) {
    return element.shape.kind != PlanKind::Cable && element.className != "crossing" &&
           element.className != "drawing" && element.className != "element" && !element.shape.paths.empty();
}

/// Whether it is carried about, rather than driven or lifted: walls do not hold it.
bool isCarried(PlanKind kind) {
    return kind == PlanKind::Model || kind == PlanKind::Poster || kind == PlanKind::Cable;
}

hrx::CVec2<double> middleOf(const hrx::CBox2d& box) {
    return {(box.low.x + box.high.x) * 0.5, (box.low.y + box.high.y) * 0.5};
}

PlanOutline moved(PlanOutline outline, const PlanMove& move) {
    const hrx::CVec2<double> by{double(move.dx), double(move.dy)};
    for (hrx::CVec2<double>& corner : outline.corners)
        corner = corner + by;
    outline.box = {outline.box.low + by, outline.box.high + by};
    return outline;
}

PlanOutline lineFrom(const hrx::CVec2<double>& start, const hrx::CVec2<double>& end) {
    PlanOutline line{{start, end}, {}};
    line.box.add(start);
    line.box.add(end);
    return line;
}

} // namespace

Ground::Ground(const TrialSite& site) : m_site(site) {
    for (std::size_t index = 0; index < site.size(); ++index) {
        m_outlines.push_back(groundOf(site.element(index)));
        const PlanOutline& outline = m_outlines.back();
        if (!holdsGround(site.element(index)))
            continue;
        m_pieces.push_back({index, outline});
        m_widest = std::max(m_widest, outline.box.high.x - outline.box.low.x);
    }
    std::sort(m_pieces.begin(), m_pieces.end(),
              [](const Piece& a, const Piece& b) { return a.outline.box.low.x < b.outline.box.low.x; });
}

bool Ground::isInTheWay(const TrialElement& element, std::size_t other) const {
    const PlanKind kind = element.shape.kind;
    const TrialElement& standing = m_site.element(other);
    if (kind == PlanKind::Cable)
        return false;
    if (kind == PlanKind::Poster &&
        (standing.shape.kind == PlanKind::Road || standing.shape.kind == PlanKind::FireRoad))
        return false;
    // Squares, lawns and the like are buildings of a site file, and carry what is put on them.
    return !(isCarried(kind) && standing.className == "building");
}

std::optional<std::size_t> Ground::obstacleIn(const TrialElement& element, const PlanOutline& outline,
                                              const std::vector<std::size_t>& excused) const {
    const auto first =
        std::lower_bound(m_pieces.begin(), m_pieces.end(), outline.box.low.x - m_widest,
                         [](const Piece& piece, double x) { return piece.outline.box.low.x < x; });
    for (auto piece = first; piece != m_pieces.end() && piece->outline.box.low.x <= outline.box.high.x;
         ++piece)
        if (m_site.element(piece->index).handle != element.handle && isInTheWay(element, piece->index) &&
            std::find(excused.begin(), excused.end(), piece->index) == excused.end() &&
            standInEachOther(outline, piece->outline, kTolerance))
            return piece->index;
    return std::nullopt;
}

const std::vector<std::size_t>& Ground::standsIn(std::size_t index) const {
    const auto [known, isNew] = m_standsIn.try_emplace(index);
    if (isNew)
        while (const auto obstacle = obstacleIn(m_site.element(index), m_outlines[index], known->second))
            known->second.push_back(*obstacle);
    return known->second;
}

std::optional<std::size_t> Ground::obstacleOf(std::size_t index, const PlanMove& move) const {
    const TrialElement& element = m_site.element(index);
    if (m_outlines[index].corners.empty())
        return std::nullopt;
    const PlanOutline outline = moved(m_outlines[index], move);
    if (const auto obstacle = obstacleIn(element, outline, standsIn(index)))
        return obstacle;
    if (isCarried(element.shape.kind))
        return std::nullopt;
    const PlanOutline way = lineFrom(middleOf(m_outlines[index].box), middleOf(outline.box));
    for (const Piece& piece : m_pieces)
        if (m_site.element(piece.index).shape.kind == PlanKind::Wall &&
            standInEachOther(way, piece.outline, kTolerance))
            return piece.index;
    return std::nullopt;
}

std::optional<std::size_t> Ground::obstacleOf(const TrialElement& element,
                                              std::optional<std::size_t> index) const {
    const PlanOutline outline = groundOf(element);
    return outline.corners.empty()
               ? std::nullopt
               : obstacleIn(element, outline, index ? standsIn(*index) : std::vector<std::size_t>());
}

} // namespace firecheck
