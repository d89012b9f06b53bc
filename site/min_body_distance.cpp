#include "site/min_body_distance.h"

#include "geometry/GeometryDistance.h"

namespace firestandard {

std::optional<Contact> leastContact(const BodyList& first, const BodyList& second) {
    std::optional<Contact> least;
    for (const auto& a : first) {
        for (const auto& b : second) {
            Contact contact;
            contact.distance =
                hrx::GeometryDistance(a.get(), b.get(), contact.onFirst, contact.onSecond, 0.1);
            if (contact.distance < (least ? least->distance : kNoBodyDistance))
                least = contact;
        }
    }
    return least;
}

} // namespace firestandard

double minBodyDistance(firestandard::BodyList first, firestandard::BodyList second) {
    const auto contact = firestandard::leastContact(first, second);
    deleteBodies(first, second);
    return contact ? contact->distance : firestandard::kNoBodyDistance;
}

void deleteBodies(firestandard::BodyList& first, firestandard::BodyList& second) {
    first.clear();
    second.clear();
}
