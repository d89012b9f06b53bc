#pragma once

#include "drawing/load_site.h"
#include "rules/rule_file.h"
#include "site_file/RefusedSite.h"

#include <string>
#include <vector>

namespace firecheck {

/// Something in a site file that keeps it from being checked, or that nobody is likely to mean.
struct SiteFinding {
    enum class Kind { Error, Doubt };

    Kind kind = Kind::Error;
    Place place;
    std::string pointer; ///< a JSON pointer; empty for the whole file, and for text that is not JSON
    PointedObject object;
    std::string code; ///< the kind of finding, for programs
    std::string message;
    std::string suggestion;   ///< what was probably meant; empty when nothing is near
    bool isOfDrawing = false; ///< about the drawing that the site was read from, and no value of the site
};

struct SiteFindings {
    std::string fileName;
    std::vector<SiteFinding> findings; ///< in the order of the file
    std::string failure;               ///< why the file could not be read as JSON; else empty
};

/// Everything wrong or doubtful in a site file. Doubts are told of files without errors only, since a file
/// with errors is no site yet.
SiteFindings lintSite(const std::string& fileName, const RuleMap& rules, const DrawingOptions& drawings = {});

} // namespace firecheck
