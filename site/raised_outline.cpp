#include "site/raised_outline.h"

std::unique_ptr<hrx::CExtrudedBody> raisedOutline(hrx::CPolygon* outline, double height, double elevation) {
    hrx::CCoord3<double> frame;
    frame.origin.z = elevation;
    return std::make_unique<hrx::CExtrudedBody>(frame, height, outline, true);
}
