#pragma once

#include "geometry/CVec3.h"
#include "random_outlines.h"

#include <benchmark/benchmark.h>

#include <array>
#include <vector>

/// Random pairs that lie as elements on a site do, the same for every library measured.
namespace workloads {

using namespace outlines;

constexpr std::size_t kPairs = 1000;

inline Loop placed(Random& random, const Loop& loop) {
    return moved({loop}, random.between(0, 2 * kPi), random.between(0, 60000), random.between(0, 60000))[0];
}
inline Loop house(Random& random) {
    return placed(random, rectangle(random.between(3000, 15000), random.between(3000, 8000)));
}
inline Loop twentyGon(Random& random) {
    return placed(random, star(random, 20, 0));
}
inline Loop arcRoad(Random& random) {
    const double radius = random.between(8000, 30000);
    return placed(random, arcStrip(radius - 2000, radius + 2000, random.between(0.5, 3)));
}

struct Cable {
    hrx::CVec3<double> start, end;
    double radius;
};

inline Cable leaningCable(Random& random) {
    return {{random.between(0, 60000), random.between(0, 60000), random.between(4000, 9000)},
            {random.between(0, 60000), random.between(0, 60000), random.between(4000, 9000)},
            random.between(10, 60)};
}
inline Cable tank(Random& random) {
    const hrx::CVec3<double> foot(random.between(0, 60000), random.between(0, 60000), 0);
    return {foot, foot + hrx::CVec3<double>(0, 0, 1), random.between(500, 5000)};
}
inline Loop circleOf(const Cable& cable) {
    return moved({circle(cable.radius)}, 0, cable.start.x, cable.start.y)[0];
}

using Plate = std::array<hrx::CVec3<double>, 4>;

inline Plate standingPlate(Random& random) {
    const hrx::CVec3<double> foot(random.between(0, 60000), random.between(0, 60000),
                                  random.between(2000, 5000));
    const hrx::CVec3<double> along(random.between(-4000, 4000), random.between(-4000, 4000), 0);
    const hrx::CVec3<double> up(0, 0, random.between(1000, 4000));
    return {foot, foot + along, foot + along + up, foot + up};
}

/// kPairs of them, the same in every run.
template <class Maker> auto made(Maker maker, unsigned seed) {
    Random random(seed);
    std::vector<decltype(maker(random))> all;
    for (std::size_t i = 0; i < kPairs; ++i)
        all.push_back(maker(random));
    return all;
}

template <class First, class Second, class Measure>
void run(benchmark::State& state, const First& firsts, const Second& seconds, Measure measure) {
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(measure(firsts[i], seconds[i]));
        i = i + 1 < kPairs ? i + 1 : 0;
    }
}

} // namespace workloads
