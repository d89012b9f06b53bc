#pragma once

#include "json/Json.h"
#include "json/JsonPlace.h"
#include "site_file/DrawingSource.h"

#include <optional>
#include <string>
#include <vector>

namespace firecheck {

struct SiteFile;

/// The object of a site file that a JSON pointer leads into, as far as the file says who it is.
struct PointedObject {
    std::string handle; ///< decimal; empty for none
    std::string name;
    std::optional<DrawnOrigin> origin; ///< of a site that was read from a drawing

    /// '#12 "Dormitory 3"', and entity and layer of a drawing; empty for no object.
    std::string text() const;
};

PointedObject pointedObject(const Json& site, const std::string& pointer);

/// Everything that keeps a site file from being read.
class RefusedSite : public InputError {
public:
    RefusedSite(const std::string& fileName, const SiteFile& file, const std::vector<Refusal>& refusals);

    struct Error {
        Refusal refusal;
        Place place;
        PointedObject object;
    };
    /// In the order of the file.
    const std::vector<Error>& errors() const { return m_errors; }
    /// One message for each, "FILE:LINE:COLUMN: ...".
    const std::vector<std::string>& messages() const { return m_messages; }

private:
    RefusedSite(const std::string& fileName, std::vector<Error> errors);
    RefusedSite(std::vector<Error> errors, std::vector<std::string> messages);

    std::vector<Error> m_errors;
    std::vector<std::string> m_messages;
};

} // namespace firecheck
