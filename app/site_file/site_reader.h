#pragma once

#include "json/Json.h"
#include "site_file/RefusedSite.h"
#include "site_file/Site.h"

#include <optional>
#include <string>
#include <vector>

namespace firecheck {

// A site is read whole or not at all: each of these throws InputError, whose text names the places and what
// was expected there.

/// A site file as text, as JSON and as a site.
struct SiteFile {
    std::string text; ///< empty for a drawing
    Json value;
    Site site;
    std::optional<DrawingSource> drawing; ///< what it was read from, if that was a drawing

    /// Where values stand in the file.
    std::vector<Place> placesOf(const std::vector<std::string>& pointers) const;
    /// The object that a pointer leads into, as far as the file says who it is.
    PointedObject objectAt(const std::string& pointer) const;
};

/// Throws RefusedSite for JSON that is not a site; errors start with the file's name, line and column. `name`
/// stands for the file in them.
SiteFile parseSiteFile(std::string text, const std::string& name);

/// Makes the site of the file's value. Throws as above.
void fillSite(SiteFile& file, const std::string& name);

Site parseSite(const std::string& text, const std::string& name);

/// Reads a site from its JSON value. Throws RefusedJson, whose messages start with a JSON pointer.
Site readSite(const Json& value);

} // namespace firecheck
