#pragma once

#include <string>

class UdDbObject;

namespace firestandard {

/// What a planner calls such an element, in lower case: "dormitory", "formwork workshop". An element that has
/// no name of its own here is called by the end of its identifier; one without identifier is an "object".
std::string elementNoun(const UdDbObject& object);

/// The identifier of a site element or the kind of a 3-D model, UTF-8; empty for any other object.
std::string elementIdentifier(const UdDbObject& object);

} // namespace firestandard
