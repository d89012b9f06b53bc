#include "site/outline_ptr.h"

void normaliseOrientation(hrx::CPolygon& outline) {
    const hrx::CCoedgeList* loop = outline.GetLoop(0);
    if (loop && loop->ClockSign() != 1)
        outline.Reverse();
}
