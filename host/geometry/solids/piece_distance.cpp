#include "geometry/solids/piece_distance.h"

#include "geometry/solids/gjk.h"

#include <queue>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <optional>
#include <vector>

namespace hrx::solids {

namespace {

constexpr double kBoundsMeet = 1e-6;
/// Far above what any real pair needs (hundreds at most); a hang is worse than a result a little too long.
constexpr int kMostMeasures = 20000;

double boxDistance(const CExtents3& a, const CExtents3& b) {
    const CVec3<double> gap(std::max({0.0, a.low.x - b.high.x, b.low.x - a.high.x}),
                            std::max({0.0, a.low.y - b.high.y, b.low.y - a.high.y}),
                            std::max({0.0, a.low.z - b.high.z, b.low.z - a.high.z}));
    return length(gap);
}

/// The contact of two pieces where their hulls come nearest at points of the pieces themselves.
std::optional<SolidContact> contactOfConvex(const ConvexPiece& a, const ConvexPiece& b) {
    const HullContact hulls = hullContact(a, b, std::numeric_limits<double>::infinity());
    if (a.onPart(hulls.onA) != hulls.onA || b.onPart(hulls.onB) != hulls.onB)
        return std::nullopt;
    return SolidContact{hulls.upper, hulls.onA, hulls.onB};
}

/// The pieces of one solid, those that came of dividing included.
class PieceSet {
public:
    explicit PieceSet(ConvexPieces pieces)
        : m_pieces(std::move(pieces)), m_halves(m_pieces.size(), kNotDivided) {
        for (const auto& piece : m_pieces)
            m_boxes.push_back(piece->box());
    }

    std::size_t size() const { return m_pieces.size(); }
    const ConvexPiece& operator[](std::size_t index) const { return *m_pieces[index]; }
    const CExtents3& box(std::size_t index) const { return m_boxes[index]; }

    /// Index of the first of the piece's two halves, made on first use; kWhole when it needs no dividing.
    std::size_t halves(std::size_t index) {
        if (m_halves[index] == kNotDivided) {
            const std::size_t first = m_pieces.size();
            ConvexPieces made;
            m_pieces[index]->split(made);
            m_halves[index] = made.empty() ? kWhole : first;
            for (auto& piece : made) {
                m_boxes.push_back(piece->box());
                m_halves.push_back(kNotDivided);
                m_pieces.push_back(std::move(piece));
            }
        }
        return m_halves[index];
    }

    static constexpr std::size_t kWhole = std::numeric_limits<std::size_t>::max();

private:
    static constexpr std::size_t kNotDivided = kWhole - 1;

    ConvexPieces m_pieces;
    boost::container::small_vector<CExtents3, 6> m_boxes;
    boost::container::small_vector<std::size_t, 6> m_halves;
};

/// Two pieces whose distance is at least lower; not measured yet, or measured and still to be divided.
struct Pair {
    double lower;
    std::size_t a;
    std::size_t b;
    bool divideA; ///< once measured: divide the piece of A rather than that of B
    bool measured;

    bool operator<(const Pair& other) const { return lower > other.lower; }
};

class Search {
public:
    Search(ConvexPieces a, ConvexPieces b) : m_a(std::move(a)), m_b(std::move(b)) {
        m_best.distance = std::numeric_limits<double>::infinity();
    }

    SolidContact run() {
        for (std::size_t a = 0; a < m_a.size(); ++a)
            for (std::size_t b = 0; b < m_b.size(); ++b)
                push(a, b, 0.0);
        int measures = 0;
        while (!m_open.empty() && measures < kMostMeasures) {
            const Pair pair = m_open.top();
            m_open.pop();
            if (pair.lower >= m_best.distance - kBoundsMeet)
                break;
            if (pair.measured) {
                divide(pair);
            } else {
                measure(pair);
                ++measures;
            }
        }
        return m_best;
    }

private:
    void push(std::size_t a, std::size_t b, double knownLower) {
        const double lower = std::max(knownLower, boxDistance(m_a.box(a), m_b.box(b)));
        if (lower < m_best.distance - kBoundsMeet)
            m_open.push({lower, a, b, false, false});
    }

    void measure(const Pair& pair) {
        const HullContact hulls = hullContact(m_a[pair.a], m_b[pair.b], m_best.distance);
        if (hulls.lower >= m_best.distance - kBoundsMeet)
            return;
        const CVec3<double> onA = m_a[pair.a].onPart(hulls.onA);
        const CVec3<double> onB = m_b[pair.b].onPart(hulls.onB);
        const bool onHulls = onA == hulls.onA && onB == hulls.onB;
        const double upper = onHulls ? hulls.upper : length(onA - onB);
        if (upper < m_best.distance)
            m_best = {upper, onA, onB};
        if (hulls.lower >= m_best.distance - kBoundsMeet)
            return;
        const double awayA = length(onA - hulls.onA);
        const double awayB = length(onB - hulls.onB);
        if (!onHulls)
            m_open.push({std::max(pair.lower, hulls.lower), pair.a, pair.b, awayA >= awayB, true});
    }

    void divide(const Pair& pair) {
        const bool first = pair.divideA;
        if (!divide(pair, first))
            divide(pair, !first);
    }

    bool divide(const Pair& pair, bool divideA) {
        const std::size_t half = divideA ? m_a.halves(pair.a) : m_b.halves(pair.b);
        if (half == PieceSet::kWhole)
            return false;
        for (std::size_t i = half; i < half + 2; ++i)
            push(divideA ? i : pair.a, divideA ? pair.b : i, pair.lower);
        return true;
    }

    PieceSet m_a;
    PieceSet m_b;
    std::priority_queue<Pair> m_open;
    SolidContact m_best;
};

} // namespace

SolidContact pieceContact(ConvexPieces a, ConvexPieces b) {
    if (a.size() == 1 && b.size() == 1)
        if (const auto contact = contactOfConvex(*a.front(), *b.front()))
            return *contact;
    return Search(std::move(a), std::move(b)).run();
}

} // namespace hrx::solids
