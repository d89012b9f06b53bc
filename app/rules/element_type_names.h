#pragma once

#include <string>
#include <vector>

namespace firecheck {

/// Every element type identifier, each spelt as elements report it.
const std::vector<std::string>& elementTypeNames();

bool isElementTypeName(const std::string& text);

/// The identifier that elements report instead of `name`, where the two families spell one kind and the
/// checks speak of only the other spelling; empty when there is none. Roads, for one, are NUX_EDO_TYPE_ROAD
/// and never NUX_ELEMENT_TYPE_ROAD.
std::string reportedInstead(const std::string& name);

} // namespace firecheck
