#include "kernel_solids.h"
#include "workloads.h"

// The same pairs as solids of Open CASCADE, building and freeing included.

using namespace workloads;

namespace {

TopoDS_Shape low(const Loop& loop) {
    return kernel::prism(loop, 1.0);
}
TopoDS_Shape high(const Loop& loop) {
    return kernel::prism(loop, 4000.0);
}
TopoDS_Shape cylinder(const Cable& cable) {
    return kernel::cylinder(cable.start, cable.end, cable.radius);
}
TopoDS_Shape plate(const Plate& corners) {
    return kernel::plate(corners, 1.0);
}

/// Every pair once: a pair takes milliseconds, and not every pair the same.
template <class First, class Second, class FirstSolid, class SecondSolid>
void add(const char* name, First first, FirstSolid firstSolid, Second second, SecondSolid secondSolid) {
    benchmark::RegisterBenchmark(name, [=](benchmark::State& state) {
        run(state, made(first, 1), made(second, 2),
            [=](const auto& a, const auto& b) { return kernel::distance(firstSolid(a), secondSolid(b)); });
    })->Iterations(kPairs);
}

const bool added = [] {
    add("kernel/twoRectangles", house, low, house, low);
    add("kernel/twentyGonAndRectangle", twentyGon, low, house, low);
    add("kernel/arcRoadAndRectangle", arcRoad, low, house, low);
    add("kernel/circleAndRectangle", tank, cylinder, house, low);
    add("kernel/leaningCylinderAndRectangle", leaningCable, cylinder, house, high);
    add("kernel/leaningCylinderAndArcRoad", leaningCable, cylinder, arcRoad, high);
    add("kernel/standingPlateAndRectangle", standingPlate, plate, house, high);
    return true;
}();

} // namespace
