#pragma once

#include "json/Json.h"
#include "site_file/Site.h"

#include <string>

namespace firecheck {

// A site is read whole or not at all: each of these throws InputError, whose text names the place and what
// was expected there.

/// Reads a site file. Errors start with the file's name, followed by line and column where the text is not
/// JSON, and by a JSON pointer where it is not a site.
Site loadSite(const std::string& fileName);

/// Reads a site from the text of a file; `name` stands for the file in errors.
Site parseSite(const std::string& text, const std::string& name);

/// Reads a site from its JSON value. Errors start with a JSON pointer.
Site readSite(const Json& value);

} // namespace firecheck
