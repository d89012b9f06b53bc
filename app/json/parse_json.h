#pragma once

#include "json/Json.h"

#include <string>

namespace firecheck {

/// Parses one JSON text in UTF-8. Throws InputError, starting with "`name`:line:column: " (both from 1,
/// columns counted in characters), for text that is not JSON, a number that is not finite, a key that occurs
/// twice in its object, and nesting or objects far beyond what a site file needs.
Json parseJson(const std::string& text, const std::string& name);

} // namespace firecheck
