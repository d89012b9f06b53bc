#pragma once

#include "cad/UdDbDocument.h"
#include "site_file/DrawingSource.h"

#include <map>
#include <memory>
#include <optional>
#include <string>

namespace firecheck {

/// What a site file says of an object for people's sake.
struct ObjectLabel {
    std::string className;
    std::string name; ///< empty for objects without one
};

/// A site as read from a file: the drawing, and what only the file knows. Texts are UTF-8.
struct Site {
    std::string name;
    std::unique_ptr<UdDbDocument> document;
    std::map<long long, ObjectLabel> labels; ///< by handle, one for every object
    std::optional<DrawingUnit> drawingUnit;  ///< of a site that was read from a drawing
};

} // namespace firecheck
