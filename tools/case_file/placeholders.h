#pragma once

#include "json/Json.h"

#include <vector>

namespace firecheck {

/// Copies of `value` without its key "each", one for every row of that list, with "{key}" in texts and keys
/// replaced by the row's values; a text that is nothing but "{key}" becomes the value itself. One copy when
/// there is no such key. Throws InputError for a list without rows and for a value that no text uses.
std::vector<Json> expanded(const Json& value);

} // namespace firecheck
