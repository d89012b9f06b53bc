#pragma once

#include "json/Json.h"
#include "json/JsonPlace.h"
#include "text/Place.h"

#include <string>
#include <vector>

namespace firecheck {

/// The object of a site file that a JSON pointer leads into, as far as the file says who it is.
struct PointedObject {
    std::string handle; ///< decimal; empty for none
    std::string name;

    /// '#12 "Dormitory 3"'; empty for no object.
    std::string text() const;
};

PointedObject pointedObject(const Json& site, const std::string& pointer);

/// Everything that keeps a site file from being read.
class RefusedSite : public InputError {
public:
    /// `text` is what `site` was parsed from.
    RefusedSite(const std::string& fileName, const std::string& text, const Json& site,
                const std::vector<Refusal>& refusals);

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
