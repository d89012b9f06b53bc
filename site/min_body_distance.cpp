#include "site/min_body_distance.h"

#include "geometry/GeometryDistance.h"
#include "site/CheckObserver.h"

double minBodyDistance(BodyList first, BodyList second) {
    double least = kNoBodyDistance;
    for (const auto& a : first) {
        for (const auto& b : second) {
            hrx::CVec3<double> onA;
            hrx::CVec3<double> onB;
            const double distance = hrx::GeometryDistance(a.get(), b.get(), onA, onB, 0.1);
            if (distance < least) {
                least = distance;
                if (CheckObserver* observer = checkObserver())
                    observer->measured(distance, onA, onB);
            }
        }
    }
    deleteBodies(first, second);
    return least;
}

void deleteBodies(BodyList& first, BodyList& second) {
    first.clear();
    second.clear();
}
