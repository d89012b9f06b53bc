#pragma once

#include "geometry/CBody.h"

#include <memory>

class NUXServiceCableObject;

/// The cable in space: a cylinder or, for the arc kind, a tube through its middle point at half height; null
/// for another shape kind and where it cannot be built.
std::unique_ptr<hrx::CBody> buildCableBody(const NUXServiceCableObject& cable);
