#include "elements/NUXCalcFunc.h"

#include "geometry/CBody.h"
#include "geometry/outline_shape.h"

bool NUXCalcFunc::IsNuxStrictlyValid(const hrx::CPolygon* polygon, bool) {
    return polygon && hrx::isStrictlyValid(*polygon);
}

bool NUXCalcFunc::IsNuxStrictlyBodyValid(const hrx::CBody* body) {
    return body && body->isStrictlyValid();
}
