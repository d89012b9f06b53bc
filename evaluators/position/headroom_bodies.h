#pragma once

#include "geometry/CExtrudedBody.h"

#include <memory>

class NUXPosterObject;
class NUXRoadObject;
class NUXServiceCableObject;

namespace firestandard {

// The solids that the headroom above a fire road is measured by.

/// The room above a fire road that must stay free, kHeadroom high; null for a road without an outline. The
/// road's own outline is turned so that its clock sign is 1.
std::unique_ptr<hrx::CExtrudedBody> buildClearanceBody(const NUXRoadObject& road);

/// The poster as a solid: a sheet raised from its two plan points (draw type 2) or a standing plate 1.0 thick
/// (draw type 1); null for other draw types and where it cannot be built.
std::unique_ptr<hrx::CExtrudedBody> buildPosterBody(const NUXPosterObject& poster);

/// Whether a poster of this kind may be measured: of draw type 2, both bodies must be valid.
bool isFitForMeasuring(const NUXPosterObject& poster, const hrx::CExtrudedBody& clearance,
                       const hrx::CExtrudedBody& posterBody);

/// The cable in space: a cylinder or, for the arc kind, a tube through its middle point at half height; null
/// for another shape kind and where it cannot be built.
std::unique_ptr<hrx::CBody> buildCableBody(const NUXServiceCableObject& cable);

} // namespace firestandard
