#pragma once

#include "json/Json.h"
#include "site_file/Site.h"

#include <string>

namespace firecheck {

// A site is read whole or not at all: each of these throws InputError, whose text names the places and what
// was expected there.

/// A site file as text, as JSON and as a site.
struct SiteFile {
    std::string text;
    Json value;
    Site site;
};

/// Throws RefusedSite for JSON that is not a site; errors start with the file's name, line and column.
SiteFile loadSiteFile(const std::string& fileName);

/// As above, for the text of a file; `name` stands for the file in errors.
SiteFile parseSiteFile(std::string text, const std::string& name);

Site loadSite(const std::string& fileName);
Site parseSite(const std::string& text, const std::string& name);

/// Reads a site from its JSON value. Throws RefusedJson, whose messages start with a JSON pointer.
Site readSite(const Json& value);

} // namespace firecheck
