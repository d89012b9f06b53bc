#pragma once

#include "json/Json.h"

namespace firecheck {

/// The JSON Schema (draft 7) of site files, made from the table of classes.
Json siteSchema();

} // namespace firecheck
