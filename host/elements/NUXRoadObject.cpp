#include "elements/NUXRoadObject.h"

#include "elements/NUXBuildPolygon.h"
#include "geometry/CExtrudedBody.h"

namespace {

hrx::PolygonRef roadOutline(const NUXRoadParams& params) {
    if (params.outline == NUXRoadOutline::None)
        return {};

    hrx::CPolygon* polygon = nullptr;
    if (params.outline == NUXRoadOutline::Given) {
        polygon = new hrx::CPolygon(params.givenOutline);
    } else {
        polygon = new hrx::CPolygon();
        if (params.shapeKind == kStraightShape)
            NUXBuildPolygon::buildLinePolgonAsTwoPt(polygon, params.start, params.end, params.width);
        else
            NUXBuildPolygon::buildArcPolygon(polygon, params.start, params.end, params.reference,
                                             params.width, 0.0);
    }
    if (polygon->LoopCount() > 0 && polygon->GetLoop(0)->ClockSign() == -1)
        polygon->Reverse();
    return hrx::PolygonRef(polygon);
}

} // namespace

NUXRoadObject::NUXRoadObject(const NUXRoadParams& params, std::wstring typeIdentifier)
    : NUXBaseObject(kClassBit, std::move(typeIdentifier), params), m_isFireRoad(params.isFireRoad),
      m_width(params.width), m_start(params.start), m_end(params.end), m_reference(params.reference),
      m_outline(roadOutline(params)) {}

std::optional<hrx::CExtents3> NUXRoadObject::geometryExtents() const {
    if (!m_outline || m_outline->LoopCount() == 0)
        return std::nullopt;
    return hrx::CExtrudedBody(hrx::CCoord3<double>(), 0.0, m_outline.get(), true).GetExtents();
}
