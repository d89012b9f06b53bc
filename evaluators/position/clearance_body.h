#pragma once

#include "geometry/CExtrudedBody.h"

#include <memory>

class NUXRoadObject;

inline constexpr double kHeadroom = 4000.0; ///< millimetres above the ground plane

/// Distances up to this one, in millimetres, count as touching.
inline constexpr double kTouchDistance = 0.001;

/// The room above a fire road that must stay free; null for a road without an outline.
std::unique_ptr<hrx::CExtrudedBody> buildClearanceBody(const NUXRoadObject& road);

/// Whether a body reaches into the room or touches it.
bool intrudes(const hrx::CExtrudedBody& clearance, const hrx::CBody& body);

/// The least distance between the room and a body, in millimetres.
double clearanceDistance(const hrx::CExtrudedBody& clearance, const hrx::CBody& body);
