#pragma once

#include "drawing/ElementKeys.h"
#include "json/Json.h"
#include "site_file/DrawingSource.h"

#include <cstdint>
#include <string>
#include <vector>

namespace firecheck {

/// An element on its way from a drawing to a site.
struct DrawnElement {
    const ElementKeys* keys = nullptr;
    Json object = Json::object(); ///< with its class, without its handle
    DrawnOrigin origin;
    std::int64_t handle = 0;         ///< that of the entity; 0 for none
    std::int64_t exportedHandle = 0; ///< that of the object that was exported; an entity may be a copy
    bool isPart = false;             ///< a further element of an entity whose handle another one has
    bool isExported = false;         ///< its extended data say all that there is to say
    bool isAtSymbol = false;         ///< placed by a block or a point, which need not lie on a wall's axis
    double symbolDepth = 0.0;        ///< mm, of the block as it is drawn
};

/// A text of a drawing that may be a name.
struct DrawnText {
    hrx::CVec2<double> at; ///< mm
    double height = 0.0;
    std::string text;
    std::string layer;
    std::string type;
    int line = 0;
};

/// Gives each element that has none the name that stands in its outline: of several the largest, and of those
/// on the element's own layer before others. Of outlines within each other the innermost has it. Answers for
/// each text whether it is a name.
std::vector<bool> nameElements(std::vector<DrawnElement>& elements, const std::vector<DrawnText>& texts);

/// Enters each door into the nearest wall that it stands in; one that was placed by a symbol is moved onto
/// its axis and turned along it. Answers the doors that stand in none. Handles are set.
std::vector<std::size_t> joinDoors(std::vector<DrawnElement>& elements);

} // namespace firecheck
