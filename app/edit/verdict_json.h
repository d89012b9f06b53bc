#pragma once

#include "edit/EditSession.h"
#include "json/Json.h"

#include <map>

namespace firecheck {

// What the page is told of a site. Lengths and points in mm, points as [x, y], handles as decimal strings.

/// A name for each finding of the report that it keeps as long as its rule finds fault with its element.
std::vector<std::string> findingIds(const SiteReport& report);

Json verdictJson(const Judgement& judgement);

/// How the elements of a report, which it refers to, are drawn.
class ShapesJson {
public:
    explicit ShapesJson(const SiteReport& report);
    /// Null for an element without geometry.
    Json of(long long handle) const;

private:
    std::map<long long, const PlanShape*> m_shapes;
};

Json requiredDistancesJson(const std::vector<RequiredDistance>& distances);
Json suggestedChangesJson(const SuggestedChanges& suggested);

} // namespace firecheck
