#pragma once

#include "cad/UdDbDocument.h"
#include "geometry/CVec2.h"

#include <cstddef>
#include <memory>
#include <random>

/// Fills a document with site elements at random places. The mix is that of a large building site; its area
/// grows with the number of objects, so an object has as many neighbours on a large site as on a small one.
/// The same count and seed give the same site everywhere.
class RandomSite {
public:
    RandomSite(std::size_t objectCount, unsigned seed);

    /// Appends the whole mix.
    void appendMix();

    // Each appends one element, appendWall two walls that meet and the door of the second.
    void appendPrefabHouse();
    void appendClosedHouse();
    void appendShed();
    void appendFutureHouse();
    void appendYard();
    void appendSubstation();
    void appendStepDownSubstation();
    void appendRoad(bool isFireRoad);
    void appendCable();
    void appendBox();
    void appendWall();
    void appendPoster();
    void appendCrane();
    void appendModel();
    void appendPlainObject();

    std::unique_ptr<UdDbDocument> take() { return std::move(m_document); }

private:
    double between(double low, double high);
    int anyOf(int count);
    hrx::CVec2<double> place();
    template <class Params> Params footprint(double length, double depth);

    std::size_t m_objectCount;
    double m_extent;
    std::mt19937 m_random;
    std::unique_ptr<UdDbDocument> m_document;
};

/// A site of the whole mix.
std::unique_ptr<UdDbDocument> randomSite(std::size_t objectCount);
