#pragma once

#include "geometry/CCoedgeList.h"

#include <boost/container/small_vector.hpp>
#include <boost/smart_ptr/intrusive_ptr.hpp>

#include <bitset>
#include <cstddef>
#include <initializer_list>
#include <iosfwd>
#include <vector>

namespace hrx {

/// A plane region bounded by one or more loops of lines and arcs. A point is inside when a ray from it
/// crosses the loops an odd number of times, so holes and separate parts are both loops.
///
/// Lives on the heap and is shared by counting: whoever keeps a polygon holds a reference (PolygonRef), and
/// the last holder's release deletes it. A new polygon has no holder and belongs to its creator, who either
/// gives it to a holder (a body) or calls Free(); doing both is safe too. One thread only.
class CPolygon {
public:
    using Loops = boost::container::small_vector<CCoedgeList, 1>;

    /// No loop yet; addLoop fills it.
    CPolygon() = default;
    /// One closed loop of straight edges; a repeated last corner is dropped.
    explicit CPolygon(const std::vector<CVec2<double>>& corners);
    CPolygon(std::initializer_list<CVec2<double>> corners);
    /// One closed loop; the bulge of a point belongs to the edge from it to the next point.
    explicit CPolygon(const std::vector<PolyPt2d>& points);
    explicit CPolygon(const std::vector<CCoedgeList>& loops);
    CPolygon(const CPolygon&) = delete;
    CPolygon& operator=(const CPolygon&) = delete;

    std::size_t LoopCount() const { return m_loops.size(); }
    /// Null when there is no such loop. The polygon keeps the loop.
    const CCoedgeList* GetLoop(std::size_t index) const;
    const Loops& loops() const { return m_loops; }
    void addLoop(const CCoedgeList& loop) { m_loops.push_back(loop); }
    /// Reverses every loop.
    void Reverse();

    /// Checks, bit 0 up: 0 at least one loop and none of fewer than two edges; 1 all coordinates and bulges
    /// finite; 2 every loop closed head to tail; 3 no edge of zero length; 4 no two edges crossing except
    /// where both end. Edges that touch or run along each other do not cross: an outline there and back
    /// passes. The log, when given, gets a line for the first check that fails.
    bool IsValid(const std::bitset<16>& checks, std::ostream* log) const;

    /// All five checks, and an area above g_DistEpsilon times the girth. Holes, which run against the loop
    /// around them, are taken off.
    bool isStrictlyValid() const;

    /// Deletes the polygon unless somebody holds a reference to it.
    void Free();

private:
    friend void intrusive_ptr_add_ref(CPolygon* polygon) { ++polygon->m_references; }
    friend void intrusive_ptr_release(CPolygon* polygon) {
        if (--polygon->m_references == 0)
            delete polygon;
    }
    ~CPolygon() = default;

    Loops m_loops;
    std::size_t m_references = 0;
};

/// Holds one reference to a polygon, or none.
using PolygonRef = boost::intrusive_ptr<CPolygon>;

} // namespace hrx
