#include "elements/NUXCalcFunc.h"

#include "geometry/CBody.h"
#include "geometry/CPolygon.h"

bool NUXCalcFunc::IsNuxStrictlyValid(const hrx::CPolygon* polygon, bool) {
    return polygon && polygon->isStrictlyValid();
}

bool NUXCalcFunc::IsNuxStrictlyBodyValid(const hrx::CBody* body) {
    return body && body->isStrictlyValid();
}
