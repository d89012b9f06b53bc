#pragma once

#include "geometry/CExtrudedBody.h"

#include <memory>

class NUXPosterObject;

/// The poster as a solid: a sheet raised from its two plan points (draw type 2) or a standing plate 1.0 thick
/// (draw type 1); null for other draw types and where it cannot be built.
std::unique_ptr<hrx::CExtrudedBody> buildPosterBody(const NUXPosterObject& poster);

/// Whether the poster reaches into the room above a road. Of draw type 2, both bodies must be valid.
bool posterIntrudes(const NUXPosterObject& poster, const hrx::CExtrudedBody& clearance,
                    const hrx::CExtrudedBody& posterBody);
