#pragma once

#include "json/Json.h"

namespace firecheck {

/// Every class that an object may be of, with what a form has to know of its keys, from the table of classes.
Json classTableJson();

} // namespace firecheck
