#pragma once

#include "edit/EditSession.h"
#include "json/Json.h"

#include <string>

namespace firecheck {

/// What the page gets: the JSON, and whether the request could be followed.
struct EditAnswer {
    enum class Outcome {
        Done,
        NoSuchRequest,
        Malformed, ///< not what the protocol has
        Refused,   ///< no site would come of it
        Conflict,  ///< the page or the file is not what it was
        Failed,
    };
    Outcome outcome = Outcome::Done;
    Json json;
};

/// Answers one request of the page by its name, "try" or "site"; docs/edit.md describes each. `isRead` tells
/// those that only ask from those that carry a body. Throws nothing.
EditAnswer answerRequest(EditSession& session, bool isRead, const std::string& name,
                         const std::string& handleAskedFor, const std::string& body);

} // namespace firecheck
