#pragma once

#include "text/Place.h"

#include <string>
#include <vector>

namespace firecheck {

/// Where an object of a site stands in the drawing that it was read from.
struct DrawnOrigin {
    int line = 0;
    std::string entity; ///< its handle in the drawing, hexadecimal; empty for none
    std::string layer;
};

/// Something that a drawing says, or leaves unsaid, and that its reader should know of.
struct DrawingDoubt {
    std::string code; ///< the kind of doubt, for programs
    int line = 0;
    std::string message;
    std::string suggestion; ///< what was probably meant; empty when nothing is near
};

/// What is known of the drawing that a site was read from.
struct DrawingSource {
    std::vector<DrawnOrigin> origins; ///< one for each object of the site
    std::vector<DrawingDoubt> doubts;

    /// Null for a pointer that leads to no object.
    const DrawnOrigin* origin(const std::string& pointer) const;
    /// The lines of the entities that JSON pointers lead to; the first line of the drawing for others.
    std::vector<Place> placesOf(const std::vector<std::string>& pointers) const;
};

/// The unit that a drawing is in.
struct DrawingUnit {
    double millimetres = 1.0;
    int code = 4; ///< as DXF numbers it
};

} // namespace firecheck
